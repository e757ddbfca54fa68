#pragma once

#include <cstdint>

namespace dwg {

// A day of the Julian calendar's count and a time of it, or a span of as much.
struct Moment {
  std::uint32_t day;
  std::uint32_t millisecond;

  constexpr double Days() const { return day + millisecond / 86400000.0; }
};

// Of all drawings made.
inline constexpr Moment kCreated = {2460310, 32400000};
inline constexpr Moment kUpdated = {2460431, 58860000};
inline constexpr Moment kEditingTime = {1, 24300000};

}  // namespace dwg

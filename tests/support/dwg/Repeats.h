#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace dwg {

// A run of bytes as they are, and what is then copied from `distance` bytes back.
struct Repeat {
  std::string_view literals;
  // 0 only at the end of the text.
  std::size_t length = 0;
  std::size_t distance = 0;
};

struct RepeatLimits {
  std::size_t shortest;
  std::size_t longest;
  std::size_t farthest;
  // Nothing is copied before this many literals.
  std::size_t leastStart;
};

// `bytes` as literals and copies, which may overlap what they make.  The last one has no copy, and
// may have no literals either.
std::vector<Repeat> FindRepeats(std::string_view bytes, const RepeatLimits& limits);

}  // namespace dwg

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dwg {

// How AC1021 protects its bytes: in words of 255 bytes, of which the last ones are parity.
struct WordShape {
  std::size_t dataSize;
  // With its leading bit.
  unsigned fieldPolynomial;
};

inline constexpr std::size_t kWordSize = 255;
inline constexpr WordShape kSystemWords = {239, 0x169};
inline constexpr WordShape kDataWords = {251, 0x11D};

std::size_t WordCount(std::size_t size, const WordShape& shape);

// `bytes` in as many words as they need, filled up with zeros: first the words' first bytes, then
// their second ones, and so on.
std::string Protected(std::string_view bytes, const WordShape& shape);

}  // namespace dwg

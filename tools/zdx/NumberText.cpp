#include "NumberText.h"

#include <array>
#include <charconv>

namespace zdx {

std::string NumberText(double number) {
  std::array<char, 32> digits = {};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

}  // namespace zdx

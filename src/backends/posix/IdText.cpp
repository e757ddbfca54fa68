#include "backends/posix/IdText.h"

#include <cstddef>
#include <cstdint>

namespace zdx {
namespace {

// Where a digit stands; each other character stands for itself.
constexpr std::wstring_view kShape = L"{HHHHHHHH-HHHH-HHHH-HHHH-HHHHHHHHHHHH}";
constexpr std::size_t kDigits = 32;

// -1 for what is no digit.
int DigitOf(wchar_t character) {
  if (character >= L'0' && character <= L'9') return character - L'0';
  if (character >= L'A' && character <= L'F') return character - L'A' + 10;
  if (character >= L'a' && character <= L'f') return character - L'a' + 10;
  return -1;
}

// The 32 digits in their order; false if the text is of another shape.
bool ReadDigits(std::wstring_view text, std::uint8_t (&digits)[kDigits]) {
  if (text.size() != kShape.size()) return false;
  std::size_t read = 0;
  for (std::size_t at = 0; at < kShape.size(); ++at) {
    if (kShape[at] != L'H') {
      if (text[at] != kShape[at]) return false;
      continue;
    }
    const int digit = DigitOf(text[at]);
    if (digit < 0) return false;
    digits[read++] = static_cast<std::uint8_t>(digit);
  }
  return true;
}

}  // namespace

std::optional<GUID> IdFromText(std::wstring_view text) {
  std::uint8_t digits[kDigits] = {};
  if (!ReadDigits(text, digits)) return std::nullopt;
  const auto number = [&digits](std::size_t first, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = first; i < first + count; ++i) value = (value << 4) | digits[i];
    return value;
  };
  GUID id = {number(0, 8),
             static_cast<std::uint16_t>(number(8, 4)),
             static_cast<std::uint16_t>(number(12, 4)),
             {}};
  for (std::size_t i = 0; i < sizeof id.Data4; ++i) {
    id.Data4[i] = static_cast<std::uint8_t>(number(16 + 2 * i, 2));
  }
  return id;
}

}  // namespace zdx

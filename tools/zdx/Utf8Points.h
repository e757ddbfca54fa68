// Valid UTF-8, one code point at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zdx {

// The code point of `text` at `at`, which is moved behind it.  `text` is valid UTF-8 and `at` is
// the start of a code point in it.
inline char32_t NextPoint(std::string_view text, std::size_t& at) {
  const auto lead = static_cast<std::uint8_t>(text[at++]);
  if (lead < 0x80) return lead;
  const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
  char32_t point = lead & (0x3Fu >> following);
  for (int i = 0; i < following && at < text.size(); ++i) {
    point = point << 6 | (static_cast<std::uint8_t>(text[at++]) & 0x3Fu);
  }
  return point;
}

}  // namespace zdx

#include "DisplayWidth.h"

#include <algorithm>
#include <array>

#include "Utf8Points.h"

namespace zdx {

namespace {

struct Range {
  char32_t first;
  char32_t last;
};

// Marks that sit on the character before them, and characters without an own shape, in the scripts
// that drawings are likely to be named in.  Ascending.
constexpr std::array kNoWidth = {
    Range{0x0300, 0x036F},   Range{0x0483, 0x0489}, Range{0x0591, 0x05BD}, Range{0x0610, 0x061A},
    Range{0x064B, 0x065F},   Range{0x0670, 0x0670}, Range{0x06D6, 0x06DC}, Range{0x0900, 0x0902},
    Range{0x093C, 0x093C},   Range{0x0941, 0x0948}, Range{0x094D, 0x094D}, Range{0x0E31, 0x0E31},
    Range{0x0E34, 0x0E3A},   Range{0x0E47, 0x0E4E}, Range{0x1AB0, 0x1AFF}, Range{0x1DC0, 0x1DFF},
    Range{0x200B, 0x200F},   Range{0x2060, 0x2064}, Range{0x20D0, 0x20FF}, Range{0x302A, 0x302D},
    Range{0x3099, 0x309A},   Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F}, Range{0xFEFF, 0xFEFF},
    Range{0xE0100, 0xE01EF},
};

// Ascending.
constexpr std::array kDoubleWidth = {
    Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF},
    Range{0x3400, 0x4DBF},   Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},
    Range{0xA960, 0xA97F},   Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},
    Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},
    Range{0x1F300, 0x1F64F}, Range{0x1F900, 0x1F9FF}, Range{0x20000, 0x3FFFD},
};

template <std::size_t Count>
bool IsIn(const std::array<Range, Count>& ranges, char32_t point) {
  const auto after =
      std::upper_bound(ranges.begin(), ranges.end(), point,
                       [](char32_t value, const Range& range) { return value < range.first; });
  return after != ranges.begin() && point <= std::prev(after)->last;
}

std::size_t WidthOf(char32_t point) {
  if (point < kNoWidth.front().first) return 1;
  if (IsIn(kNoWidth, point)) return 0;
  return IsIn(kDoubleWidth, point) ? 2 : 1;
}

}  // namespace

std::size_t DisplayWidth(std::string_view text) {
  std::size_t width = 0;
  for (std::size_t at = 0; at < text.size();) width += WidthOf(NextPoint(text, at));
  return width;
}

}  // namespace zdx

#include "support/scripted/CaseFold.h"

#include "ZDXEngine/Utf8.h"

namespace scripted {
namespace {

struct Capitals {
  char32_t first;
  char32_t last;
  char32_t toSmall;
};

constexpr Capitals kCapitals[] = {
    {U'A', U'Z', 0x20},   {0xC0, 0xD6, 0x20},   {0xD8, 0xDE, 0x20},   {0x391, 0x3A1, 0x20},
    {0x3A3, 0x3AB, 0x20}, {0x400, 0x40F, 0x50}, {0x410, 0x42F, 0x20}, {0x10400, 0x10427, 0x28},
};

char32_t Small(char32_t point) {
  for (const Capitals& range : kCapitals) {
    if (point >= range.first && point <= range.last) return point + range.toSmall;
  }
  return point;
}

}  // namespace

std::u32string FoldCase(const std::wstring& text) {
  std::u32string folded;
  for (std::size_t at = 0; at < text.size();) {
    folded.push_back(Small(ZDXEngine::utf8_detail::NextPoint(text, at)));
  }
  return folded;
}

}  // namespace scripted

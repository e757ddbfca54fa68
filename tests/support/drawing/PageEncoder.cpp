#include "support/drawing/PageEncoder.h"

#include <charconv>
#include <cstdint>
#include <stdexcept>

namespace drawing {
namespace {

constexpr std::string_view kPagePrefix = "ANSI_";
constexpr std::uint32_t kFirstBeyondUnit = 0x10000;

// The length of the UTF-8 character that begins with `lead`, 0 if none can.
std::size_t CharacterLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

std::string_view FirstCharacter(std::string_view utf8) {
  const std::size_t length = CharacterLength(static_cast<unsigned char>(utf8.front()));
  if (length == 0 || length > utf8.size()) throw std::invalid_argument("text isn't UTF-8");
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(utf8[i]) & 0xC0) != 0x80) {
      throw std::invalid_argument("text isn't UTF-8");
    }
  }
  return utf8.substr(0, length);
}

std::uint32_t CodePoint(std::string_view character) {
  static constexpr unsigned char kLeadMask[] = {0, 0x7F, 0x1F, 0x0F, 0x07};
  std::uint32_t point = static_cast<unsigned char>(character[0]) & kLeadMask[character.size()];
  for (const char byte : character.substr(1)) {
    point = point << 6 | (static_cast<unsigned char>(byte) & 0x3F);
  }
  return point;
}

void AppendUnit(std::string& text, std::uint32_t unit) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  text += "\\U+";
  for (int shift = 12; shift >= 0; shift -= 4) text += kDigits[unit >> shift & 0xF];
}

void AppendEscape(std::string& text, std::uint32_t point) {
  if (point < kFirstBeyondUnit) return AppendUnit(text, point);
  AppendUnit(text, 0xD800 + ((point - kFirstBeyondUnit) >> 10));
  AppendUnit(text, 0xDC00 + ((point - kFirstBeyondUnit) & 0x3FF));
}

// 0, which is no code page, for any other text.
int PageNumber(std::string_view codePage) {
  int number = 0;
  if (!codePage.starts_with(kPagePrefix)) return 0;
  codePage.remove_prefix(kPagePrefix.size());
  const char* const end = codePage.data() + codePage.size();
  return std::from_chars(codePage.data(), end, number).ptr == end ? number : 0;
}

}  // namespace

PageEncoder::PageEncoder() = default;

PageEncoder::PageEncoder(std::string_view codePage) : page_(PageBytes::Make(PageNumber(codePage))) {
  if (!page_) throw std::invalid_argument("no such code page: " + std::string(codePage));
}

PageEncoder::~PageEncoder() = default;

std::string PageEncoder::Encode(std::string_view utf8) const {
  std::string text;
  while (!utf8.empty()) {
    const std::string_view character = FirstCharacter(utf8);
    AppendCharacter(text, character);
    utf8.remove_prefix(character.size());
  }
  return text;
}

void PageEncoder::AppendCharacter(std::string& text, std::string_view character) const {
  const auto lead = static_cast<unsigned char>(character[0]);
  if (lead < 0x80 || !page_) {
    text += character;
  } else if (const std::string bytes = page_->Find(character); !bytes.empty()) {
    text += bytes;
  } else {
    AppendEscape(text, CodePoint(character));
  }
}

}  // namespace drawing

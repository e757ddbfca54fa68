#include "support/dwg/Texts.h"

#include <stdexcept>

#include "support/dwg/Bytes.h"

namespace dwg {
namespace {

constexpr std::uint32_t kFirstBeyondUnit = 0x10000;

struct PageNumber {
  std::string_view page;
  unsigned number;
};

constexpr PageNumber kPageNumbers[] = {
    {"ANSI_1250", 28}, {"ANSI_1251", 29}, {"ANSI_1252", 30}, {"ANSI_1253", 32}, {"ANSI_1254", 33},
    {"ANSI_1255", 34}, {"ANSI_1256", 35}, {"ANSI_1257", 36}, {"ANSI_874", 37},  {"ANSI_932", 38},
    {"ANSI_936", 39},  {"ANSI_949", 40},  {"ANSI_950", 41},  {"ANSI_1361", 42}, {"ANSI_1258", 44}};

// Takes the first character off `utf8`.
std::uint32_t TakeCodePoint(std::string_view& utf8) {
  const auto lead = static_cast<unsigned char>(utf8[0]);
  const std::size_t size = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  if (size > utf8.size()) throw std::invalid_argument("text isn't UTF-8");
  std::uint32_t point = size == 1 ? lead : lead & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; ++i) {
    point = point << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3Fu);
  }
  utf8.remove_prefix(size);
  return point;
}

}  // namespace

std::string Utf16(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const std::uint32_t point = TakeCodePoint(utf8);
    if (point < kFirstBeyondUnit) {
      AppendNumber(bytes, point, 2);
    } else {
      AppendNumber(bytes, 0xD800 + ((point - kFirstBeyondUnit) >> 10), 2);
      AppendNumber(bytes, 0xDC00 + ((point - kFirstBeyondUnit) & 0x3FF), 2);
    }
  }
  return bytes;
}

std::string CountedText(std::string_view utf8, Version version, const drawing::PageEncoder& encoder,
                        std::string_view pageMark, std::size_t countSize) {
  if (version >= Version::AC1021) {
    const std::string text = Utf16(utf8);
    return NumberBytes(text.size() / 2, 2) + text;
  }
  const std::string text = encoder.Encode(utf8);
  if (text.size() >> (8 * countSize) != 0) {
    throw std::invalid_argument("a text is too long for its place");
  }
  return NumberBytes(text.size(), countSize).append(pageMark) + text;
}

std::string StoredName(std::string_view name, Version version) {
  std::string stored(name);
  if (version >= Version::AC1015) return stored;
  for (char& letter : stored) {
    if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    if (letter == ' ') letter = '_';
  }
  return stored;
}

unsigned CodePageNumber(std::string_view codePage) {
  for (const PageNumber& entry : kPageNumbers) {
    if (entry.page == codePage) return entry.number;
  }
  throw std::invalid_argument("no number for code page " + std::string(codePage));
}

}  // namespace dwg

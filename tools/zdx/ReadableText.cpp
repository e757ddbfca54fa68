#include "ReadableText.h"

#include <algorithm>
#include <cstddef>

#include "Utf8Points.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

bool IsControl(char32_t point) { return point < 0x20 || (point >= 0x7F && point <= 0x9F); }

// Line and paragraph separator, and what embeds, overrides or isolates a direction.
bool TurnsTheLine(char32_t point) {
  return (point >= 0x2028 && point <= 0x202E) || (point >= 0x2066 && point <= 0x2069);
}

void AppendNumber(std::string& text, char32_t point) {
  const int digits = point < 0x80 ? 2 : 4;
  text += digits == 2 ? "\\x" : "\\u";
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text.push_back("0123456789abcdef"[point >> shift & 0xF]);
  }
}

}  // namespace

std::string ReadableText(std::string_view text) {
  std::string readable;
  readable.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t point = NextPoint(text, at);
    if (IsControl(point) || TurnsTheLine(point)) {
      AppendNumber(readable, point);
    } else {
      readable += text.substr(start, at - start);
    }
  }
  return readable;
}

std::string ReadableText(std::wstring_view text) {
  return ReadableText(ZDXEngine::Utf8FromWide(text));
}

std::vector<std::string> ReadableLines(std::wstring_view text) {
  const std::string all = ZDXEngine::Utf8FromWide(text);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at <= all.size();) {
    const std::size_t end = std::min(all.find('\n', at), all.size());
    std::string_view line = std::string_view(all).substr(at, end - at);
    if (end < all.size() && line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(ReadableText(line));
    at = end + 1;
  }
  return lines;
}

}  // namespace zdx

#include "support/drawing/LongText.h"

#include <algorithm>

namespace drawing {
namespace {

constexpr std::size_t kLongestPiece = 250;

}  // namespace

std::string TakePiece(std::string& rest, std::size_t longest) {
  std::size_t size = std::min(longest, rest.size());
  while (size < rest.size() && (static_cast<unsigned char>(rest[size]) & 0xC0) == 0x80) --size;
  std::string piece = rest.substr(0, size);
  rest.erase(0, size);
  return piece;
}

void AppendLongText(std::vector<Tag>& tags, std::string text) {
  while (text.size() > kLongestPiece) tags.emplace_back(3, TakePiece(text, kLongestPiece));
  tags.emplace_back(1, text);
}

}  // namespace drawing

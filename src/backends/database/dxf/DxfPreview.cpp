// The preview picture: its bytes in chunks, with their number before them.
#include <algorithm>

#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using model::StoredPicture;

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1A\n";

int DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// Appends what the hexadecimal digits of `line` stand for; false if it holds anything else.
bool AppendDigits(std::string& bytes, std::string_view line) {
  if (line.size() % 2 != 0) return false;
  for (std::size_t i = 0; i < line.size(); i += 2) {
    const int high = DigitOf(line[i]);
    const int low = DigitOf(line[i + 1]);
    if (high < 0 || low < 0) return false;
    bytes.push_back(static_cast<char>(high << 4 | low));
  }
  return true;
}

bool AppendChunk(std::string& bytes, const Tag& chunk, Form form) {
  if (form == Form::kText) return AppendDigits(bytes, Trimmed(chunk.value));
  bytes += chunk.value;
  return true;
}

}  // namespace

std::vector<StoredPicture> DxfDrawing::PreviewPictures() {
  const auto section = FindSection(kThumbnailSection);
  if (!section) return {};
  ObjectTags tags(stream_, section->begin);
  Tag tag;
  std::optional<Tag> length;
  StoredPicture picture;
  picture.at = section->begin;
  while (tags.Next(tag)) {
    if (tag.code == kLengthCode && !length) length = tag;
    if (tag.code != kChunkCode) continue;
    if (picture.bytes.empty()) picture.at = tag.at;
    if (!AppendChunk(picture.bytes, tag, stream_.form())) {
      Warn(L"The preview picture holds what isn't a byte in hexadecimal digits.", tag.at);
      return {};
    }
  }
  WarnOfDamage(tags);
  if (!IsWhole(length, picture.bytes.size())) return {};
  if (picture.bytes.starts_with(kPngSignature)) picture.kind = StoredPicture::Kind::kPng;
  return {std::move(picture)};
}

// Whether the picture has as many bytes as the file says before it; without a word of it, any
// number will do but none.
bool DxfDrawing::IsWhole(const std::optional<Tag>& length, std::size_t size) {
  if (!length) return size != 0;
  std::int64_t told = 0;
  if (ParseInteger(stream_.form(), length->value, told) && told >= 0 &&
      static_cast<std::uint64_t>(told) == size) {
    return size != 0;
  }
  Warn(L"The preview picture hasn't the length that is told.", length->at);
  return false;
}

}  // namespace zdx::dxf

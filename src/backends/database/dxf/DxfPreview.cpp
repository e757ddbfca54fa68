// The preview picture: its bytes in chunks, with their number before them.
#include "backends/database/dxf/ByteChunks.h"
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using model::StoredPicture;

constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1A\n";

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

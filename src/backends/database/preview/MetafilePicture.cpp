#include "backends/database/preview/MetafilePicture.h"

#include <optional>

#include "backends/database/preview/StoredBitmap.h"
#include "base/LittleEndian.h"
#include "base/MetafileFormat.h"

namespace zdx::preview {
namespace {

// A metafile in a file of its own has a head of its own before its header.
constexpr std::uint32_t kPlaceableKey = 0x9AC6CDD7;
constexpr std::size_t kPlaceableHeadSize = 4 + 2 + 4 * 2 + 2 + 4 + 2;

constexpr const wchar_t* kDamagedMetafile = L"The metafile is damaged.";
constexpr const wchar_t* kNoBitmap = L"The metafile draws no bitmap.";

// How many bytes stand before the bitmap of such a record; nullopt if it never has one.
std::optional<std::size_t> FieldsOf(std::uint16_t function) {
  switch (function) {
    case kBitBlock:
      return kBitBlockFields;
    case kStretchedBitBlock:
      return kStretchedBitBlockFields;
    case kStretchedBitmap:
      return kStretchedBitmapFields;
    default:
      return std::nullopt;
  }
}

// Whether the record at `at` gives colours and no numbers of a palette's.
bool HoldsColours(std::string_view bytes, std::size_t at) {
  constexpr std::size_t kUseAt = kRecordHeadSize + 4;
  return LittleEndianAt<std::uint16_t>(bytes, at + 4) != kStretchedBitmap ||
         LittleEndianAt<std::uint16_t>(bytes, at + kUseAt) == os::kRgbColors;
}

std::string_view WithoutPlaceableHead(std::string_view bytes) {
  const bool placeable = bytes.size() >= kPlaceableHeadSize &&
                         LittleEndianAt<std::uint32_t>(bytes, 0) == kPlaceableKey;
  return placeable ? bytes.substr(kPlaceableHeadSize) : bytes;
}

}  // namespace

Showing ShowMetafile(std::string_view file) {
  const std::string_view bytes = WithoutPlaceableHead(file);
  if (bytes.size() < kMetafileHeaderSize ||
      LittleEndianAt<std::uint16_t>(bytes, 2) != kMetafileHeaderSize / 2) {
    return kDamagedMetafile;
  }
  std::size_t at = kMetafileHeaderSize;
  while (bytes.size() - at >= kRecordHeadSize) {
    const std::uint64_t size = std::uint64_t{LittleEndianAt<std::uint32_t>(bytes, at)} * 2;
    if (size < kRecordHeadSize || size > bytes.size() - at) return kDamagedMetafile;
    const std::uint16_t function = LittleEndianAt<std::uint16_t>(bytes, at + 4);
    if (function == kEndOfMetafile) return kNoBitmap;
    const auto fields = FieldsOf(function);
    // A record may do without a bitmap, and is shorter then.
    if (fields && size - kRecordHeadSize > *fields && HoldsColours(bytes, at)) {
      const std::size_t before = kRecordHeadSize + *fields;
      return ShowBitmap(bytes.substr(at + before, static_cast<std::size_t>(size) - before));
    }
    at += static_cast<std::size_t>(size);
  }
  return kDamagedMetafile;
}

}  // namespace zdx::preview

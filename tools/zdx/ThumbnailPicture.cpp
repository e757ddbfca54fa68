#include "ThumbnailPicture.h"

#include <string_view>

#include "PropertyNames.h"

namespace zdx {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::wstring_view kThumbnailNumber = L"17";

// Before the metafile: format, mapping mode, and six bytes that the bitmap tells better.
constexpr std::size_t kValueHeadSize = 4 + 2 + 6;
constexpr std::uint32_t kMetafilePicture = 3;
constexpr std::uint32_t kAnisotropic = 8;

// A metafile's header begins with its type and its own words; 4 bytes from kMetafileWordsAt are the
// words of the whole.  A record begins with its words, 4 bytes, and its function, 2.
constexpr std::size_t kMetafileHeaderSize = 18;
constexpr std::size_t kMetafileWordsAt = 6;
constexpr std::size_t kRecordHeadSize = 4 + 2;
constexpr std::uint32_t kBitBlock = 0x0940;
// Operation, and places and sizes.
constexpr std::size_t kBitBlockFields = 4 + 6 * 2;

constexpr std::size_t kBitmapHeadSize = 40;
constexpr std::uint32_t kMasked = 3;

// The little-endian number of `size` bytes at `at`, which are there.
std::uint32_t NumberAt(Bytes bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i > 0; --i) number = number << 8 | bytes[at + i - 1];
  return number;
}

// The bitmap in the one record that has one; empty if there is none.
Bytes FindBitmap(Bytes metafile) {
  if (metafile.size() < kMetafileHeaderSize || NumberAt(metafile, 0, 2) != 1 ||
      NumberAt(metafile, 2, 2) != kMetafileHeaderSize / 2 ||
      std::uint64_t{NumberAt(metafile, kMetafileWordsAt, 4)} * 2 != metafile.size()) {
    return {};
  }
  Bytes rest = metafile.subspan(kMetafileHeaderSize);
  while (rest.size() >= kRecordHeadSize) {
    const std::uint64_t size = std::uint64_t{NumberAt(rest, 0, 4)} * 2;
    if (size < kRecordHeadSize || size > rest.size()) return {};
    const Bytes record = rest.first(static_cast<std::size_t>(size));
    if (NumberAt(record, 4, 2) == kBitBlock) {
      constexpr std::size_t kBefore = kRecordHeadSize + kBitBlockFields;
      return record.size() < kBefore ? Bytes() : record.subspan(kBefore);
    }
    rest = rest.subspan(record.size());
  }
  return {};
}

bool HasMasks(std::uint32_t bits) { return bits == 16 || bits == 32; }

bool IsKnownDepth(std::uint32_t bits) {
  return bits == 1 || bits == 4 || bits == 8 || bits == 24 || HasMasks(bits);
}

// Fills in what stands behind the head of `picture.bitmap`; false if it isn't all there.
bool TakeColoursAndRows(ThumbnailPicture& picture) {
  Bytes rest = picture.bitmap.subspan(kBitmapHeadSize);
  if (HasMasks(picture.bits)) {
    if (rest.size() < sizeof picture.masks) return false;
    for (std::size_t i = 0; i < 3; ++i) picture.masks[i] = NumberAt(rest, i * 4, 4);
    rest = rest.subspan(sizeof picture.masks);
  } else if (picture.bits <= 8) {
    const std::size_t size = std::size_t{4} << picture.bits;
    if (rest.size() < size) return false;
    picture.colours = rest.first(size);
    rest = rest.subspan(size);
  }
  const std::uint64_t rowSize = (std::uint64_t{picture.width} * picture.bits + 31) / 32 * 4;
  if (rowSize > rest.size() / picture.height) return false;
  picture.rowSize = static_cast<std::size_t>(rowSize);
  picture.rows = rest.first(picture.rowSize * picture.height);
  picture.bitmap = picture.bitmap.first(picture.bitmap.size() - rest.size() + picture.rows.size());
  return true;
}

}  // namespace

bool IsThumbnail(const ZDXEngine::_PropData& property) {
  return SetOf(property) == PropertySet::kSummary && property.name == kThumbnailNumber;
}

std::optional<ThumbnailPicture> ReadThumbnail(Bytes value) {
  if (value.size() < kValueHeadSize || NumberAt(value, 0, 4) != kMetafilePicture ||
      NumberAt(value, 4, 2) != kAnisotropic) {
    return std::nullopt;
  }
  ThumbnailPicture picture;
  picture.metafile = value.subspan(kValueHeadSize);
  picture.bitmap = FindBitmap(picture.metafile);
  if (picture.bitmap.size() < kBitmapHeadSize) return std::nullopt;
  picture.width = NumberAt(picture.bitmap, 4, 4);
  picture.height = NumberAt(picture.bitmap, 8, 4);
  picture.bits = static_cast<std::uint16_t>(NumberAt(picture.bitmap, 14, 2));
  constexpr std::uint32_t kMost = 0x7FFFFFFF;
  const bool sized =
      picture.width > 0 && picture.width <= kMost && picture.height > 0 && picture.height <= kMost;
  const std::uint32_t compression = HasMasks(picture.bits) ? kMasked : 0;
  if (!sized || NumberAt(picture.bitmap, 0, 4) != kBitmapHeadSize || !IsKnownDepth(picture.bits) ||
      NumberAt(picture.bitmap, 16, 4) != compression ||
      // The table is always whole.
      NumberAt(picture.bitmap, 32, 4) != 0 || !TakeColoursAndRows(picture)) {
    return std::nullopt;
  }
  return picture;
}

}  // namespace zdx

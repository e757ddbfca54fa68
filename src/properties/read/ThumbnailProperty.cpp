#include "properties/read/ThumbnailProperty.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <utility>

#include "platform/os/Graphics.h"
#include "platform/os/Os.h"
#include "platform/zndb/ZnDbPreview.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

// What stands before the metafile, little-endian:
//
//   OFFSET  SIZE  MEANING
//      0      4   clipboard format: a metafile picture
//      4      2   mapping mode: the picture fits itself to its place
//      6      2   width in logical units, low 16 bits
//      8      2   height likewise
//     10      2   nothing
constexpr std::uint32_t kHeadSize = 12;
constexpr std::uint8_t kMetafilePicture = 3;
constexpr std::uint8_t kAnisotropic = 8;
constexpr unsigned long kThumbnailNumber = 0x11;

struct Preview {
  os::HBITMAP bitmap = nullptr;
  os::HPALETTE palette = nullptr;
};

struct Picture {
  os::HMETAFILE metafile = nullptr;
  os::POINT size = {};
};

struct Free {
  void operator()(std::uint8_t* block) const { std::free(block); }
};
struct Block {
  std::unique_ptr<std::uint8_t, Free> bytes;
  std::uint32_t size = 0;
};

// Cleared in the end.
struct OwnedVariant {
  OwnedVariant() { os::VariantInit(&value); }
  ~OwnedVariant() { os::VariantClear(&value); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;

  VARIANT value;
};

// A context on which `bitmap` is selected.
os::HDC NewSourceContext(os::HBITMAP bitmap) {
  const os::HDC screen = os::GetDC(nullptr);
  const os::HDC source = os::CreateCompatibleDC(screen);
  os::ReleaseDC(nullptr, screen);
  os::SelectObject(source, bitmap);
  return source;
}

// The bitmap's size in the logical units of `target`.
os::POINT LogicalSize(os::HBITMAP bitmap, os::HDC target) {
  os::BITMAP description = {};
  os::GetObjectW(bitmap, sizeof description, &description);
  os::POINT size = {description.bmWidth, description.bmHeight};
  os::DPtoLP(target, &size, 1);
  return size;
}

// What fails among these calls shows in the picture alone.
Picture DrawPreview(const Preview& preview) {
  const os::HDC target = os::CreateMetaFileW(nullptr);
  const os::HDC source = NewSourceContext(preview.bitmap);
  os::SetMapMode(source, os::GetMapMode(target));
  Picture picture;
  picture.size = LogicalSize(preview.bitmap, target);
  os::POINT origin = {0, 0};
  os::DPtoLP(source, &origin, 1);
  os::SelectPalette(target, preview.palette, 1);
  os::RealizePalette(target);
  os::BitBlt(target, 0, 0, picture.size.x, picture.size.y, source, origin.x, origin.y,
             os::kSourceCopy);
  os::DeleteDC(source);
  picture.metafile = os::CloseMetaFile(target);
  return picture;
}

void PutLow16(std::uint8_t* place, std::int32_t value) {
  place[0] = static_cast<std::uint8_t>(value & 0xFF);
  place[1] = static_cast<std::uint8_t>((value >> 8) & 0xFF);
}

// The head with the metafile behind it; without bytes if there is no memory for them.
Block MakeBlock(const Picture& picture) {
  const std::uint32_t size = os::GetMetaFileBitsEx(picture.metafile, 0, nullptr);
  Block block;
  if (size > std::numeric_limits<std::uint32_t>::max() - kHeadSize) return block;
  block.size = size + kHeadSize;
  block.bytes.reset(static_cast<std::uint8_t*>(std::calloc(1, block.size)));
  std::uint8_t* const bytes = block.bytes.get();
  if (bytes == nullptr) return block;
  bytes[0] = kMetafilePicture;
  bytes[4] = kAnisotropic;
  PutLow16(bytes + 6, picture.size.x);
  PutLow16(bytes + 8, picture.size.y);
  os::GetMetaFileBitsEx(picture.metafile, size, bytes + kHeadSize);
  return block;
}

void AddThumbnail(std::vector<_PropData>& properties, const VARIANT& picture) {
  VARIANT value;
  os::VariantInit(&value);
  const HRESULT result = os::VariantCopy(&value, &picture);
  if (result < 0) throw _com_error(result);
  AddProperty(properties, value, kTypeBinary, L"Thumbnail", FMTID_SummaryInformation,
              kThumbnailNumber);
}

void AddBlock(std::vector<_PropData>& properties, const Block& block) {
  if (block.bytes == nullptr) return;
  OwnedVariant picture;
  if (os::InitVariantFromBuffer(block.bytes.get(), block.size, &picture.value) < 0) return;
  AddThumbnail(properties, picture.value);
  os::VariantClear(&picture.value);
}

}  // namespace

void CollectThumbnailProperty(std::vector<_PropData>& properties, ZnDbDatabase* database) {
  const wchar_t* path = nullptr;
  if (database->getFilename(path) != Zent::kOk || path == nullptr) return;
  Preview preview;
  zndbGetPreviewBitmapFromDwg(path, preview.bitmap, preview.palette);
  if (preview.bitmap == nullptr) return;
  const Picture picture = DrawPreview(preview);
  if (picture.metafile != nullptr) AddBlock(properties, MakeBlock(picture));
  os::DeleteMetaFile(picture.metafile);
  os::DeleteObject(preview.bitmap);
  os::DeleteObject(preview.palette);
}

}  // namespace ZDXEngine

#include "backends/posix/graphics/MetafileRecorder.h"

#include <algorithm>
#include <new>
#include <utility>

#include "base/MetafileFormat.h"

namespace zdx::graphics {
namespace {

void Append16(std::string& bytes, std::uint32_t number) {
  bytes.push_back(static_cast<char>(number & 0xFF));
  bytes.push_back(static_cast<char>(number >> 8 & 0xFF));
}

void Append32(std::string& bytes, std::uint32_t number) {
  Append16(bytes, number & 0xFFFF);
  Append16(bytes, number >> 16);
}

// The masks of a bitmap that has some, else its colour table.
std::uint64_t ColoursSize(const Bitmap& bitmap) {
  if (bitmap.bits() == 16 || bitmap.bits() == 32) return sizeof bitmap.masks();
  return bitmap.colours().size() * sizeof(os::RGBQUAD);
}

}  // namespace

MetafileRecorder::MetafileRecorder(std::size_t mostBytes)
    : mostBytes_(mostBytes), bytes_(kMetafileHeaderSize, '\0') {}

// Starts a record with `size` bytes behind its head, an even number.  False if there is no room,
// which is kept for the last record.
bool MetafileRecorder::Begin(std::uint16_t function, std::uint64_t size) {
  const std::size_t lastRecord = function == kEndOfMetafile ? 0 : kRecordHeadSize;
  const std::uint64_t used = bytes_.size() + kRecordHeadSize + lastRecord;
  failed_ = failed_ || used > mostBytes_ || size > mostBytes_ - used;
  if (failed_) return false;
  const auto whole = static_cast<std::size_t>(kRecordHeadSize + size);
  try {
    bytes_.reserve(bytes_.size() + whole + lastRecord);
  } catch (const std::bad_alloc&) {
    failed_ = true;
    return false;
  }
  const auto words = static_cast<std::uint32_t>(whole / 2);
  largestWords_ = std::max(largestWords_, words);
  Put32(words);
  Put16(function);
  return true;
}

void MetafileRecorder::Put16(std::uint32_t number) { Append16(bytes_, number); }
void MetafileRecorder::Put32(std::uint32_t number) { Append32(bytes_, number); }

void MetafileRecorder::SelectPalette(std::span<const os::PALETTEENTRY> entries) {
  if (!Begin(kCreatePalette, 2 + 2 + entries.size() * sizeof(os::PALETTEENTRY))) return;
  Put16(os::kPaletteVersion);
  Put16(static_cast<std::uint32_t>(entries.size()));
  for (const os::PALETTEENTRY& entry : entries) {
    for (const std::uint8_t part : {entry.peRed, entry.peGreen, entry.peBlue, entry.peFlags}) {
      bytes_.push_back(static_cast<char>(part));
    }
  }
  const std::uint16_t object = objects_++;
  if (Begin(kSelectPalette, 2)) Put16(object);
}

void MetafileRecorder::RealizePalette() { Begin(kRealizePalette, 0); }

bool MetafileRecorder::DrawBitmap(const Bitmap& bitmap, const Transfer& transfer) {
  const std::uint64_t size =
      kBitBlockFields + sizeof(os::BITMAPINFOHEADER) + ColoursSize(bitmap) + bitmap.size();
  if (!Begin(kBitBlock, size)) return false;
  Put32(transfer.operation);
  for (const std::int32_t number : {transfer.sourceY, transfer.sourceX, transfer.height,
                                    transfer.width, transfer.targetY, transfer.targetX}) {
    Put16(static_cast<std::uint32_t>(number));
  }
  PutBitmapHead(bitmap);
  for (std::uint32_t row = 0; row < bitmap.height(); ++row) {
    const auto bytes = bitmap.RowFromBottom(row);
    bytes_.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  }
  return true;
}

void MetafileRecorder::PutBitmapHead(const Bitmap& bitmap) {
  const bool masked = bitmap.bits() == 16 || bitmap.bits() == 32;
  Put32(sizeof(os::BITMAPINFOHEADER));
  Put32(bitmap.width());
  Put32(bitmap.height());
  Put16(1);
  Put16(bitmap.bits());
  Put32(masked ? os::kBitFields : os::kRgb);
  Put32(bitmap.size());
  for (int i = 0; i < 4; ++i) Put32(0);
  if (masked) {
    for (const std::uint32_t mask : bitmap.masks()) Put32(mask);
  }
  for (const os::RGBQUAD& colour : bitmap.colours()) {
    for (const std::uint8_t part :
         {colour.rgbBlue, colour.rgbGreen, colour.rgbRed, colour.rgbReserved}) {
      bytes_.push_back(static_cast<char>(part));
    }
  }
}

std::optional<std::string> MetafileRecorder::Finish() {
  if (!Begin(kEndOfMetafile, 0)) return std::nullopt;
  std::string header;
  Append16(header, kMemoryMetafile);
  Append16(header, kMetafileHeaderSize / 2);
  Append16(header, kMetafileVersion);
  Append32(header, static_cast<std::uint32_t>(bytes_.size() / 2));
  Append16(header, objects_);
  Append32(header, largestWords_);
  Append16(header, 0);
  bytes_.replace(0, header.size(), header);
  return std::move(bytes_);
}

}  // namespace zdx::graphics

#include "backends/database/preview/StoredBitmap.h"

#include <bit>
#include <cstring>
#include <string>

#include "backends/database/preview/BitmapHead.h"
#include "backends/database/preview/RunLengths.h"
#include "base/LittleEndian.h"

namespace zdx::preview {
namespace {

using Packing = BitmapHead::Packing;

constexpr const wchar_t* kOddMasks = L"The bitmap's colour masks can't be used.";
constexpr const wchar_t* kRowsEnd = L"The bitmap's rows end too early.";
constexpr const wchar_t* kOddRuns = L"The bitmap's packed rows are damaged.";

os::BITMAPINFOHEADER HeadOf(const BitmapHead& head) {
  os::BITMAPINFOHEADER told{};
  told.biSize = sizeof told;
  told.biWidth = static_cast<std::int32_t>(head.width);
  told.biHeight = static_cast<std::int32_t>(head.height);
  if (head.topDown) told.biHeight = -told.biHeight;
  told.biPlanes = 1;
  told.biBitCount = head.bits;
  told.biCompression = head.packing == Packing::kMasks ? os::kBitFields : os::kRgb;
  told.biClrUsed = head.bits <= 8 ? static_cast<std::uint32_t>(head.colours) : 0;
  return told;
}

// Whether the mask is one run of bits of a pixel.
bool IsRun(std::uint32_t mask, unsigned bits) {
  if (mask == 0 || (bits < 32 && mask >> bits != 0)) return false;
  const std::uint32_t shifted = mask >> std::countr_zero(mask);
  return (shifted & (shifted + 1)) == 0;
}

bool AreFitMasks(std::string_view masks, unsigned bits) {
  const std::uint32_t red = LittleEndianAt<std::uint32_t>(masks, 0);
  const std::uint32_t green = LittleEndianAt<std::uint32_t>(masks, 4);
  const std::uint32_t blue = LittleEndianAt<std::uint32_t>(masks, 8);
  return IsRun(red, bits) && IsRun(green, bits) && IsRun(blue, bits) && (red & green) == 0 &&
         (red & blue) == 0 && (green & blue) == 0;
}

// What stands between head and rows, with four bytes a colour.
std::string ColoursOf(std::string_view bytes, const BitmapHead& head) {
  if (head.packing == Packing::kMasks) return std::string(bytes.substr(head.masksAt, 4 + 4 + 4));
  std::string colours;
  // A table of more than 8 bits only advises poorer screens.
  if (head.bits > 8) return colours;
  for (std::size_t i = 0; i < head.colours; ++i) {
    colours += bytes.substr(head.coloursAt + i * head.colourSize, 3);
    colours += '\0';
  }
  return colours;
}

}  // namespace

Showing ShowBitmap(std::string_view bytes) {
  const auto read = ReadBitmapHead(bytes);
  if (const auto* const flaw = std::get_if<const wchar_t*>(&read)) return *flaw;
  const auto& head = std::get<BitmapHead>(read);
  const std::string colours = ColoursOf(bytes, head);
  if (head.packing == Packing::kMasks && !AreFitMasks(colours, head.bits)) return kOddMasks;
  const std::string_view stored = bytes.substr(head.rowsAt);
  const std::uint64_t rowSize = RowSize(head.width, head.bits);
  if (head.packing == Packing::kRuns8 || head.packing == Packing::kRuns4) {
    if (rowSize > kMostUnpackedBytes / head.height) return kTooLarge;
    Dib dib(HeadOf(head), colours);
    if (!UnpackRuns(stored, head, dib.rows())) return kOddRuns;
    return dib;
  }
  if (rowSize > stored.size() / head.height) return kRowsEnd;
  Dib dib(HeadOf(head), colours);
  std::memcpy(dib.rows().data(), stored.data(), dib.rows().size());
  return dib;
}

}  // namespace zdx::preview

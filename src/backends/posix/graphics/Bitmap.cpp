#include "backends/posix/graphics/Bitmap.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace zdx::graphics {
namespace {

constexpr std::uint64_t kMostBytes = std::numeric_limits<std::uint32_t>::max();
constexpr std::array<std::uint32_t, 3> kMasksOf16Bits = {0x7C00, 0x03E0, 0x001F};
constexpr std::array<std::uint32_t, 3> kMasksOf32Bits = {0xFF0000, 0x00FF00, 0x0000FF};

bool HasMasks(std::uint16_t bits) { return bits == 16 || bits == 32; }

bool IsFit(const os::BITMAPINFOHEADER& head) {
  constexpr std::array<std::uint16_t, 6> kDepths = {1, 4, 8, 16, 24, 32};
  const bool compressionFits = head.biCompression == os::kRgb ||
                               (head.biCompression == os::kBitFields && HasMasks(head.biBitCount));
  return head.biSize >= sizeof(os::BITMAPINFOHEADER) && head.biWidth > 0 && head.biHeight != 0 &&
         head.biHeight != std::numeric_limits<std::int32_t>::min() && head.biPlanes == 1 &&
         std::find(kDepths.begin(), kDepths.end(), head.biBitCount) != kDepths.end() &&
         compressionFits;
}

std::uint64_t RowSize(const os::BITMAPINFOHEADER& head) {
  return (static_cast<std::uint64_t>(head.biWidth) * head.biBitCount + 31) / 32 * 4;
}

}  // namespace

std::unique_ptr<Bitmap> Bitmap::Make(const os::BITMAPINFO& info) {
  const os::BITMAPINFOHEADER& head = info.bmiHeader;
  if (!IsFit(head)) return nullptr;
  std::unique_ptr<Bitmap> bitmap(new Bitmap());
  bitmap->width_ = static_cast<std::uint32_t>(head.biWidth);
  bitmap->height_ = static_cast<std::uint32_t>(head.biHeight < 0 ? -head.biHeight : head.biHeight);
  bitmap->bits_ = head.biBitCount;
  bitmap->topDown_ = head.biHeight < 0;
  const std::uint64_t rowSize = RowSize(head);
  if (rowSize > kMostBytes / bitmap->height_) return nullptr;
  bitmap->rowSize_ = static_cast<std::uint32_t>(rowSize);
  bitmap->rows_.reset(static_cast<std::uint8_t*>(std::calloc(bitmap->size(), 1)));
  if (bitmap->rows_ == nullptr) return nullptr;
  bitmap->TakeColours(info);
  return bitmap;
}

void Bitmap::TakeColours(const os::BITMAPINFO& info) {
  const os::BITMAPINFOHEADER& head = info.bmiHeader;
  // What follows the head, which is as long as it says.
  const auto* const behind = reinterpret_cast<const std::uint8_t*>(&info) + head.biSize;
  if (bits_ <= 8) {
    colours_.resize(std::size_t{1} << bits_);
    const std::size_t given = head.biClrUsed == 0
                                  ? colours_.size()
                                  : std::min<std::size_t>(head.biClrUsed, colours_.size());
    std::memcpy(colours_.data(), behind, given * sizeof(os::RGBQUAD));
  } else if (head.biCompression == os::kBitFields) {
    std::memcpy(masks_.data(), behind, sizeof masks_);
  } else if (HasMasks(bits_)) {
    masks_ = bits_ == 16 ? kMasksOf16Bits : kMasksOf32Bits;
  }
}

std::span<const std::uint8_t> Bitmap::RowFromBottom(std::uint32_t row) const {
  const std::uint32_t stored = topDown_ ? height_ - 1 - row : row;
  return {rows_.get() + std::size_t{stored} * rowSize_, rowSize_};
}

}  // namespace zdx::graphics

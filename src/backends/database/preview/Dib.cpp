#include "backends/database/preview/Dib.h"

#include <cstdlib>
#include <cstring>

namespace zdx::preview {
namespace {

std::size_t SizeOfRows(const os::BITMAPINFOHEADER& head) {
  const auto height = static_cast<std::uint64_t>(std::abs(std::int64_t{head.biHeight}));
  return RowSize(static_cast<std::uint64_t>(head.biWidth), head.biBitCount) * height;
}

}  // namespace

Dib::Dib(const os::BITMAPINFOHEADER& head, std::string_view colours)
    : rowsSize_(SizeOfRows(head)),
      block_((sizeof head + colours.size() + rowsSize_) / sizeof(std::uint32_t)) {
  auto* const bytes = reinterpret_cast<std::uint8_t*>(block_.data());
  std::memcpy(bytes, &head, sizeof head);
  if (!colours.empty()) std::memcpy(bytes + sizeof head, colours.data(), colours.size());
}

const os::BITMAPINFO* Dib::info() const {
  return reinterpret_cast<const os::BITMAPINFO*>(block_.data());
}

std::span<const os::RGBQUAD> Dib::colours() const {
  const auto* const behind = reinterpret_cast<const os::RGBQUAD*>(
      reinterpret_cast<const std::uint8_t*>(block_.data()) + sizeof(os::BITMAPINFOHEADER));
  return {behind, head().biBitCount <= 8 ? head().biClrUsed : 0};
}

std::span<std::uint8_t> Dib::rows() {
  return {reinterpret_cast<std::uint8_t*>(block_.data()) + RowsAt(), rowsSize_};
}

std::span<const std::uint8_t> Dib::rows() const {
  return {reinterpret_cast<const std::uint8_t*>(block_.data()) + RowsAt(), rowsSize_};
}

}  // namespace zdx::preview

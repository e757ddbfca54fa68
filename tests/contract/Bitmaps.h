// Descriptions of bitmaps and palettes, as the calls take them.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/os/Graphics.h"

namespace contract {

// A bitmap's description with room for a full colour table.
struct Info {
  os::BITMAPINFOHEADER head{};
  os::RGBQUAD colours[256]{};

  Info(std::int32_t width, std::int32_t height, std::uint16_t bits) {
    head.biSize = sizeof head;
    head.biWidth = width;
    head.biHeight = height;
    head.biPlanes = 1;
    head.biBitCount = bits;
  }
  const os::BITMAPINFO* get() const { return reinterpret_cast<const os::BITMAPINFO*>(&head); }
};

// The bytes of a row, filled up to a multiple of four.
inline std::size_t RowSize(int width, int bits) {
  return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
}

// A palette with room for 256 colours, of which `count` are used.
struct Palette {
  std::uint16_t version = os::kPaletteVersion;
  std::uint16_t count = 0;
  os::PALETTEENTRY entries[256]{};

  explicit Palette(std::uint16_t entryCount) : count(entryCount) {}
  const os::LOGPALETTE* get() const { return reinterpret_cast<const os::LOGPALETTE*>(this); }
};

}  // namespace contract

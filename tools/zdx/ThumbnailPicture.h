// The preview picture as the engine gives it: twelve bytes, and a metafile that draws a bitmap.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "ZDXEngine/PropData.h"

namespace zdx {

// All spans lie within the property's value and live as long.
struct ThumbnailPicture {
  // The whole metafile.
  std::span<const std::uint8_t> metafile;
  // The device-independent bitmap in it: a head of 40 bytes, masks or colour table, rows from the
  // bottom up.
  std::span<const std::uint8_t> bitmap;
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  // 1, 4, 8, 16, 24 or 32.
  std::uint16_t bits = 0;
  // Of red, green and blue, where a pixel has 16 or 32 bits.
  std::array<std::uint32_t, 3> masks = {};
  // Blue, green, red and nothing for each, where a pixel has up to 8 bits.
  std::span<const std::uint8_t> colours;
  std::span<const std::uint8_t> rows;
  // The bytes of a row.
  std::size_t rowSize = 0;
};

// Whether `property` is the preview picture.
bool IsThumbnail(const ZDXEngine::_PropData& property);

// The picture in `value`; nothing if any of it isn't as it must be.
std::optional<ThumbnailPicture> ReadThumbnail(std::span<const std::uint8_t> value);

}  // namespace zdx

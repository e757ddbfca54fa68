#include "PictureFiles.h"

#include <png.h>

#include <algorithm>
#include <bit>
#include <initializer_list>
#include <vector>

namespace zdx {

namespace {

void Append(std::string& bytes, std::uint32_t number, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    bytes.push_back(static_cast<char>(number >> 8 * i & 0xFF));
  }
}

void Append(std::string& bytes, std::span<const std::uint8_t> more) {
  bytes.append(reinterpret_cast<const char*>(more.data()), more.size());
}

// "BM", the bytes of the file, nothing, and where the rows begin.
std::string BmpFile(const ThumbnailPicture& picture) {
  constexpr std::uint32_t kHeadSize = 2 + 4 + 4 + 4;
  const auto size = static_cast<std::uint32_t>(picture.bitmap.size());
  const auto rows = static_cast<std::uint32_t>(picture.rows.size());
  std::string bytes = "BM";
  Append(bytes, kHeadSize + size, 4);
  Append(bytes, 0, 4);
  Append(bytes, kHeadSize + size - rows, 4);
  Append(bytes, picture.bitmap);
  return bytes;
}

// A key, nothing, the corners, units an inch, nothing, and what makes all its words cancel out.
std::string WmfFile(const ThumbnailPicture& picture) {
  constexpr std::uint32_t kMostUnits = 0x7FFF;
  // Most viewers draw an inch as 72 pixels unless they are told otherwise.
  constexpr std::uint32_t kUnitsAnInch = 72;
  std::string bytes;
  if (picture.width <= kMostUnits && picture.height <= kMostUnits) {
    std::uint32_t sum = 0;
    for (const std::uint32_t word :
         {0xCDD7u, 0x9AC6u, 0u, 0u, 0u, picture.width, picture.height, kUnitsAnInch, 0u, 0u}) {
      Append(bytes, word, 2);
      sum ^= word;
    }
    Append(bytes, sum, 2);
  }
  Append(bytes, picture.metafile);
  return bytes;
}

// The bits of `pixel` that `mask` marks, spread over 0 to 255.
std::uint8_t Part(std::uint32_t pixel, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int shift = std::countr_zero(mask);
  const std::uint64_t most = mask >> shift;
  const std::uint64_t value = (pixel & mask) >> shift;
  return static_cast<std::uint8_t>((value * 255 + most / 2) / most);
}

std::span<const std::uint8_t> RowFromTop(const ThumbnailPicture& picture, std::uint32_t y) {
  return picture.rows.subspan((picture.height - 1 - y) * picture.rowSize, picture.rowSize);
}

// The pixels from the top: numbers of colours, or blue, green and red.
std::vector<std::uint8_t> PixelsOf(const ThumbnailPicture& picture) {
  std::vector<std::uint8_t> pixels;
  const std::size_t parts = picture.bits <= 8 ? 1 : 3;
  pixels.reserve(std::size_t{picture.width} * picture.height * parts);
  for (std::uint32_t y = 0; y < picture.height; ++y) {
    const auto row = RowFromTop(picture, y);
    for (std::size_t x = 0; x < picture.width; ++x) {
      const std::size_t at = x * picture.bits / 8;
      if (picture.bits <= 8) {
        const auto shift = 8 - picture.bits - x * picture.bits % 8;
        pixels.push_back(static_cast<std::uint8_t>(row[at] >> shift & ((1u << picture.bits) - 1)));
      } else if (picture.bits == 24) {
        pixels.insert(pixels.end(), {row[at], row[at + 1], row[at + 2]});
      } else {
        std::uint32_t pixel = 0;
        for (std::size_t i = picture.bits / 8u; i > 0; --i) pixel = pixel << 8 | row[at + i - 1];
        const auto& masks = picture.masks;
        pixels.insert(pixels.end(),
                      {Part(pixel, masks[2]), Part(pixel, masks[1]), Part(pixel, masks[0])});
      }
    }
  }
  return pixels;
}

std::string PngFile(const ThumbnailPicture& picture) {
  const std::vector<std::uint8_t> pixels = PixelsOf(picture);
  std::vector<std::uint8_t> colours;
  for (std::size_t i = 0; i + 3 < picture.colours.size(); i += 4) {
    colours.insert(colours.end(),
                   {picture.colours[i], picture.colours[i + 1], picture.colours[i + 2]});
  }
  png_image image{};
  image.version = PNG_IMAGE_VERSION;
  image.width = picture.width;
  image.height = picture.height;
  image.format = colours.empty() ? PNG_FORMAT_BGR : PNG_FORMAT_BGR_COLORMAP;
  image.colormap_entries = static_cast<png_uint_32>(colours.size() / 3);
  const void* const table = colours.empty() ? nullptr : colours.data();
  png_alloc_size_t size = 0;
  std::string bytes;
  if (png_image_write_to_memory(&image, nullptr, &size, 0, pixels.data(), 0, table) == 0) return {};
  bytes.resize(size);
  if (png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels.data(), 0, table) == 0) {
    return {};
  }
  bytes.resize(size);
  return bytes;
}

}  // namespace

std::string PictureFile(PictureKind kind, const ThumbnailPicture& picture) {
  switch (kind) {
    case PictureKind::kBmp:
      return BmpFile(picture);
    case PictureKind::kWmf:
      return WmfFile(picture);
    case PictureKind::kPng:
      break;
  }
  return PngFile(picture);
}

}  // namespace zdx

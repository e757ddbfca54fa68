// Pictures made for tests, byte for byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pictures {

// Little-endian.
std::string Number(std::uint32_t number, std::size_t size);

// The 40 bytes before a bitmap's colours and rows.
struct BitmapHead {
  std::int32_t width = 4;
  std::int32_t height = 2;
  std::uint16_t bits = 24;
  std::uint32_t compression = 0;
  std::uint32_t coloursUsed = 0;
  std::uint16_t planes = 1;

  std::string Bytes() const;
};

// Two rows of four pixels, 24 bits each, from the bottom up: the bytes 0 to 23.
std::string SmallBitmap();

struct PngSpec {
  std::uint32_t width = 1;
  std::uint32_t height = 1;
  std::uint8_t depth = 8;
  // 0 grey, 2 colours, 3 palette, 4 grey with opacity, 6 colours with opacity.
  std::uint8_t colourType = 2;
  std::string palette = {};
  std::string transparency = {};
  // From the top down, without what the format puts before a row.
  std::string rows = {};
};

// The picture without any compression.
std::string Png(const PngSpec& spec);
// One chunk with its length and checksum.
std::string PngChunk(std::string_view name, std::string_view data);

// A record of a metafile: its function and what stands behind that.
struct MetafileRecord {
  std::uint16_t function;
  std::string bytes;
};

// A metafile of those records, with header and end; and one of a single record.
std::string Metafile(const std::vector<MetafileRecord>& records);
std::string Metafile(std::uint16_t function, std::string_view record);

}  // namespace pictures

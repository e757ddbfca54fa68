#include "maker/Preview.h"

#include "support/dwg/Bytes.h"
#include "support/dwg/Checksums.h"

namespace examples {
namespace {

constexpr unsigned kWidth = 48;
constexpr unsigned kHeight = 30;
constexpr unsigned kBitsPerPixel = 24;
constexpr unsigned kGround = 0xE8E0D0;
constexpr unsigned kGrass = 0x4C8C4C;

// Rows count from below.
unsigned ColourAt(unsigned x, unsigned y) {
  const bool isOnPlot = x > 5 && x < 42 && y > 4 && y < 26;
  return isOnPlot ? kGround : kGrass;
}

std::string HighFirst(std::uint64_t number, std::size_t size) {
  const std::string bytes = dwg::NumberBytes(number, size);
  return {bytes.rbegin(), bytes.rend()};
}

std::string Chunk(const std::string& type, const std::string& data) {
  return HighFirst(data.size(), 4) + type + data + HighFirst(dwg::Crc32(type + data), 4);
}

// One block of bytes as they are; the check is the page sum that starts with one.
std::string Stored(const std::string& bytes) {
  return std::string("\x78\x01\x01") + dwg::NumberBytes(bytes.size(), 2) +
         dwg::NumberBytes(~bytes.size(), 2) + bytes + HighFirst(dwg::PageSum(1, bytes), 4);
}

}  // namespace

std::string PreviewBitmap() {
  constexpr unsigned kHeadSize = 40;
  std::string bytes;
  dwg::AppendNumber(bytes, kHeadSize, 4);
  dwg::AppendNumber(bytes, kWidth, 4);
  dwg::AppendNumber(bytes, kHeight, 4);
  dwg::AppendNumber(bytes, 1, 2);
  dwg::AppendNumber(bytes, kBitsPerPixel, 2);
  dwg::AppendNumber(bytes, 0, 4);
  dwg::AppendNumber(bytes, kWidth * kHeight * kBitsPerPixel / 8, 4);
  for (int i = 0; i < 4; ++i) dwg::AppendNumber(bytes, 0, 4);
  for (unsigned y = 0; y < kHeight; ++y) {
    for (unsigned x = 0; x < kWidth; ++x) dwg::AppendNumber(bytes, ColourAt(x, y), 3);
  }
  return bytes;
}

std::string PreviewPng() {
  std::string rows;
  for (unsigned y = kHeight; y > 0; --y) {
    rows += '\0';
    for (unsigned x = 0; x < kWidth; ++x) rows += HighFirst(ColourAt(x, y - 1), 3);
  }
  // Eight bits a colour, three colours.
  const std::string head =
      HighFirst(kWidth, 4) + HighFirst(kHeight, 4) + dwg::FromHex("0802000000");
  return dwg::FromHex("89504E470D0A1A0A") + Chunk("IHDR", head) + Chunk("IDAT", Stored(rows)) +
         Chunk("IEND", "");
}

}  // namespace examples

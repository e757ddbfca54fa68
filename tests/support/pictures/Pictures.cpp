#include "support/pictures/Pictures.h"

#include <algorithm>

namespace pictures {
namespace {

std::string BigEndian(std::uint32_t number) {
  const std::string little = Number(number, 4);
  return {little.rbegin(), little.rend()};
}

std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const char c : bytes) {
    crc ^= static_cast<unsigned char>(c);
    for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ ((crc & 1) != 0 ? 0xEDB88320 : 0);
  }
  return ~crc;
}

std::uint32_t Adler32(std::string_view bytes) {
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const char c : bytes) {
    low = (low + static_cast<unsigned char>(c)) % 65521;
    high = (high + low) % 65521;
  }
  return high << 16 | low;
}

// A stream of one block that is stored as it is.
std::string Stored(std::string_view bytes) {
  const auto size = static_cast<std::uint32_t>(bytes.size());
  std::string stream = "\x78\x01\x01" + Number(size, 2) + Number(~size & 0xFFFF, 2);
  return stream.append(bytes) + BigEndian(Adler32(bytes));
}

std::size_t BitsOf(const PngSpec& spec) {
  switch (spec.colourType) {
    case 2:
      return std::size_t{3} * spec.depth;
    case 4:
      return std::size_t{2} * spec.depth;
    case 6:
      return std::size_t{4} * spec.depth;
    default:
      return spec.depth;
  }
}

}  // namespace

std::string Number(std::uint32_t number, std::size_t size) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) bytes.push_back(static_cast<char>(number >> 8 * i & 0xFF));
  return bytes;
}

std::string BitmapHead::Bytes() const {
  return Number(40, 4) + Number(static_cast<std::uint32_t>(width), 4) +
         Number(static_cast<std::uint32_t>(height), 4) + Number(planes, 2) + Number(bits, 2) +
         Number(compression, 4) + std::string(12, '\0') + Number(coloursUsed, 4) + Number(0, 4);
}

std::string SmallBitmap() {
  std::string bytes = BitmapHead().Bytes();
  for (char byte = 0; byte < 24; ++byte) bytes.push_back(byte);
  return bytes;
}

std::string PngChunk(std::string_view name, std::string_view data) {
  std::string checked(name);
  checked += data;
  return BigEndian(static_cast<std::uint32_t>(data.size())) + checked + BigEndian(Crc32(checked));
}

std::string Png(const PngSpec& spec) {
  const std::string head = BigEndian(spec.width) + BigEndian(spec.height) +
                           static_cast<char>(spec.depth) + static_cast<char>(spec.colourType) +
                           std::string(3, '\0');
  const std::size_t rowSize = (spec.width * BitsOf(spec) + 7) / 8;
  std::string rows;
  for (std::size_t at = 0; at < spec.rows.size(); at += rowSize) {
    rows += '\0' + spec.rows.substr(at, rowSize);
  }
  std::string bytes = "\x89PNG\r\n\x1A\n" + PngChunk("IHDR", head);
  if (!spec.palette.empty()) bytes += PngChunk("PLTE", spec.palette);
  if (!spec.transparency.empty()) bytes += PngChunk("tRNS", spec.transparency);
  return bytes + PngChunk("IDAT", Stored(rows)) + PngChunk("IEND", "");
}

std::string Metafile(const std::vector<MetafileRecord>& records) {
  std::string body;
  std::uint32_t largest = 3;
  for (const MetafileRecord& record : records) {
    const auto words = static_cast<std::uint32_t>((6 + record.bytes.size()) / 2);
    body += Number(words, 4) + Number(record.function, 2) + record.bytes;
    largest = std::max(largest, words);
  }
  body += Number(3, 4) + Number(0, 2);
  const auto words = static_cast<std::uint32_t>(9 + body.size() / 2);
  return Number(1, 2) + Number(9, 2) + Number(0x300, 2) + Number(words, 4) + Number(0, 2) +
         Number(largest, 4) + Number(0, 2) + body;
}

std::string Metafile(std::uint16_t function, std::string_view record) {
  return Metafile({{function, std::string(record)}});
}

}  // namespace pictures

#include "support/dwg/Checksums.h"

#include <algorithm>

namespace dwg {
namespace {

constexpr std::uint16_t kCrc16Seed = 0xC0C1;
constexpr std::uint32_t kPolynomial16 = 0xA001;
constexpr std::uint32_t kPolynomial32 = 0xEDB88320;
constexpr std::uint32_t kSumModulus = 0xFFF1;
constexpr std::size_t kSumChunk = 0x15B0;

// One byte pushed through a register that shifts to the right.
std::uint32_t Pushed(std::uint32_t crc, char byte, std::uint32_t polynomial) {
  crc ^= static_cast<unsigned char>(byte);
  for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ ((crc & 1) != 0 ? polynomial : 0);
  return crc;
}

}  // namespace

std::uint16_t Crc16(std::string_view bytes) {
  std::uint32_t crc = kCrc16Seed;
  for (const char byte : bytes) crc = Pushed(crc, byte, kPolynomial16);
  return static_cast<std::uint16_t>(crc);
}

std::uint32_t Crc32(std::string_view bytes) {
  std::uint32_t crc = 0xFFFFFFFF;
  for (const char byte : bytes) crc = Pushed(crc, byte, kPolynomial32);
  return ~crc;
}

std::uint32_t PageSum(std::uint32_t seed, std::string_view bytes) {
  std::uint32_t low = seed & 0xFFFF;
  std::uint32_t high = seed >> 16;
  while (!bytes.empty()) {
    const std::string_view chunk = bytes.substr(0, std::min(kSumChunk, bytes.size()));
    for (const char byte : chunk) {
      low += static_cast<unsigned char>(byte);
      high += low;
    }
    low %= kSumModulus;
    high %= kSumModulus;
    bytes.remove_prefix(chunk.size());
  }
  return high << 16 | low;
}

std::string MaskBytes(std::size_t count) {
  std::string bytes;
  std::uint32_t state = 1;
  while (bytes.size() < count) {
    state = state * 0x343FD + 0x269EC3;
    bytes += static_cast<char>(state >> 16 & 0xFF);
  }
  return bytes;
}

}  // namespace dwg

#include "support/dwg/CodedChecksums.h"

#include <array>
#include <string>

#include "support/dwg/Checksums.h"

namespace dwg {
namespace {

constexpr std::uint64_t kMirroredPolynomial = 0x95AC9329AC4BC9B5;
constexpr std::uint64_t kPlainPolynomial = 0x42F0E1EBA9EA3693;

// What each byte leaves in a register that shifts to the right.
constexpr std::array<std::uint64_t, 256> kMirroredRests = [] {
  std::array<std::uint64_t, 256> rests = {};
  for (std::size_t byte = 0; byte < rests.size(); ++byte) {
    std::uint64_t crc = byte;
    for (int i = 0; i < 8; ++i) crc = crc >> 1 ^ ((crc & 1) != 0 ? kMirroredPolynomial : 0);
    rests[byte] = crc;
  }
  return rests;
}();

std::uint64_t Stirred(std::uint64_t value) { return value * 0x343FD + 0x269EC3; }

// Within each eight bytes, and within what is left at the end.
std::string Reordered(std::string_view bytes) {
  static constexpr std::string_view kOrders[] = {{},
                                                 {"\0", 1},
                                                 {"\0\1", 2},
                                                 {"\0\1\2", 3},
                                                 {"\2\3\0\1", 4},
                                                 {"\2\3\0\1\4", 5},
                                                 {"\2\3\0\1\4\5", 6},
                                                 {"\2\3\0\1\4\5\6", 7}};
  static constexpr std::string_view kWholeOrder("\6\7\4\5\2\3\0\1", 8);
  std::string ordered;
  while (!bytes.empty()) {
    const std::string_view order = bytes.size() >= 8 ? kWholeOrder : kOrders[bytes.size()];
    for (const char place : order) ordered += bytes[static_cast<std::size_t>(place)];
    bytes.remove_prefix(order.size());
  }
  return ordered;
}

}  // namespace

std::uint32_t CodedPageSum(std::string_view bytes) {
  return PageSum(static_cast<std::uint32_t>(Stirred(bytes.size())), Reordered(bytes));
}

std::uint64_t CodedCrc64(std::string_view bytes) {
  const std::uint64_t first = Stirred(bytes.size());
  std::uint64_t crc = ~(Stirred(first) << 32 | first);
  for (const char byte : Reordered(bytes)) {
    crc = crc >> 8 ^ kMirroredRests[(crc ^ static_cast<unsigned char>(byte)) & 0xFF];
  }
  return crc;
}

std::uint64_t HeadCrc64(std::string_view bytes) {
  const std::uint64_t first = Stirred(bytes.size());
  std::uint64_t crc = ~((first << 32) + Stirred(first) + bytes.size());
  for (const char byte : Reordered(bytes)) {
    crc ^= std::uint64_t{static_cast<unsigned char>(byte)} << 56;
    for (int i = 0; i < 8; ++i) crc = crc << 1 ^ (crc >> 63 != 0 ? kPlainPolynomial : 0);
  }
  return ~crc;
}

}  // namespace dwg

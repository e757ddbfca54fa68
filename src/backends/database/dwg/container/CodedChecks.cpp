#include "backends/database/dwg/container/CodedChecks.h"

#include <array>
#include <string>

#include "backends/database/dwg/bits/Checksums.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kGroup = 8;
// The order of the bytes in a group, and in the last group by how many it has.
constexpr std::array<std::uint8_t, kGroup> kGroupOrder = {6, 7, 4, 5, 2, 3, 0, 1};
constexpr std::array<std::array<std::uint8_t, kGroup - 1>, kGroup> kRestOrder = {{
    {},
    {0},
    {0, 1},
    {0, 1, 2},
    {2, 3, 0, 1},
    {2, 3, 0, 1, 4},
    {2, 3, 0, 1, 4, 5},
    {2, 3, 0, 1, 4, 5, 6},
}};

std::string Reordered(std::string_view bytes) {
  std::string ordered(bytes.size(), '\0');
  char* to = ordered.data();
  for (; bytes.size() >= kGroup; bytes.remove_prefix(kGroup), to += kGroup) {
    for (std::size_t i = 0; i < kGroup; ++i) to[i] = bytes[kGroupOrder[i]];
  }
  for (std::size_t i = 0; i < bytes.size(); ++i) to[i] = bytes[kRestOrder[bytes.size()][i]];
  return ordered;
}

// The next number of the generator from which all seeds come.
template <class Number>
constexpr Number NextSeed(Number seed) {
  return seed * 0x343FD + 0x269EC3;
}

constexpr std::uint64_t kReflectedPolynomial = 0x95AC9329AC4BC9B5;
constexpr std::uint64_t kPlainPolynomial = 0x42F0E1EBA9EA3693;

constexpr std::array<std::uint64_t, 256> kReflectedTable = [] {
  std::array<std::uint64_t, 256> table = {};
  for (std::uint64_t i = 0; i < table.size(); ++i) {
    std::uint64_t word = i;
    for (int bit = 0; bit < 8; ++bit) word = word >> 1 ^ ((word & 1) * kReflectedPolynomial);
    table[i] = word;
  }
  return table;
}();

constexpr std::array<std::uint64_t, 256> kPlainTable = [] {
  std::array<std::uint64_t, 256> table = {};
  for (std::uint64_t i = 0; i < table.size(); ++i) {
    std::uint64_t word = i << 56;
    for (int bit = 0; bit < 8; ++bit) word = word << 1 ^ ((word >> 63) * kPlainPolynomial);
    table[i] = word;
  }
  return table;
}();

}  // namespace

std::uint64_t CodedPageSum(std::string_view bytes) {
  const std::uint32_t seed = NextSeed(static_cast<std::uint32_t>(bytes.size()));
  return PageSum(seed, Reordered(bytes));
}

std::uint64_t CodedPageCrc(std::string_view bytes) {
  const std::uint64_t first = NextSeed(std::uint64_t{bytes.size()});
  const std::uint64_t second = NextSeed(first);
  std::uint64_t word = ~(second << 32 | first);
  for (const char c : Reordered(bytes)) {
    word = word >> 8 ^ kReflectedTable[(word ^ static_cast<std::uint8_t>(c)) & 0xFF];
  }
  return word;
}

std::uint64_t CodedHeadCrc(std::string_view bytes) {
  const std::uint64_t first = NextSeed(std::uint64_t{bytes.size()});
  const std::uint64_t second = NextSeed(first);
  std::uint64_t word = ~((first << 32) + second + bytes.size());
  for (const char c : Reordered(bytes)) {
    word = word << 8 ^ kPlainTable[word >> 56 ^ static_cast<std::uint8_t>(c)];
  }
  return ~word;
}

}  // namespace zdx::dwg

#include "backends/database/dwg/container/CodedChecks.h"

#include <array>

#include "backends/database/dwg/bits/Checksums.h"
#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

constexpr std::size_t kGroup = 8;
// As many bytes as PageSum takes at once, so that the pieces change nothing for it.
constexpr std::size_t kPiece = 0x15B0;
static_assert(kPiece % kGroup == 0);
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

// Hands `take` the bytes in their order, in pieces: there may be many.
template <class Take>
void ForEachPiece(std::string_view bytes, Take take) {
  std::array<char, kPiece> ordered;
  while (!bytes.empty()) {
    std::string_view piece = bytes.substr(0, kPiece);
    const std::size_t size = piece.size();
    bytes.remove_prefix(size);
    char* to = ordered.data();
    for (; piece.size() >= kGroup; piece.remove_prefix(kGroup)) {
      for (const std::uint8_t from : kGroupOrder) *to++ = piece[from];
    }
    for (std::size_t i = 0; i < piece.size(); ++i) *to++ = piece[kRestOrder[piece.size()][i]];
    take(std::string_view(ordered.data(), size));
  }
}

// The next number of the generator from which all seeds come.
template <class Number>
constexpr Number NextSeed(Number seed) {
  return seed * 0x343FD + 0x269EC3;
}

constexpr std::uint64_t kReflectedPolynomial = 0x95AC9329AC4BC9B5;
constexpr std::uint64_t kPlainPolynomial = 0x42F0E1EBA9EA3693;

// What a byte does to the check, with so many bytes behind it as the table's number says: eight
// bytes are taken at once.
using Table = std::array<std::uint64_t, 256>;
constexpr std::array<Table, 8> kReflectedTables = [] {
  std::array<Table, 8> tables = {};
  for (std::uint64_t i = 0; i < 256; ++i) {
    std::uint64_t word = i;
    for (int bit = 0; bit < 8; ++bit) word = word >> 1 ^ ((word & 1) * kReflectedPolynomial);
    tables[0][i] = word;
  }
  for (std::size_t n = 1; n < tables.size(); ++n) {
    for (std::size_t i = 0; i < 256; ++i) {
      const std::uint64_t before = tables[n - 1][i];
      tables[n][i] = before >> 8 ^ tables[0][before & 0xFF];
    }
  }
  return tables;
}();

std::uint64_t Reflected(std::uint64_t word, std::string_view bytes) {
  for (; bytes.size() >= kReflectedTables.size(); bytes.remove_prefix(kReflectedTables.size())) {
    word ^= LittleEndian<std::uint64_t>(bytes);
    std::uint64_t next = 0;
    for (std::size_t i = 0; i < kReflectedTables.size(); ++i) {
      next ^= kReflectedTables[kReflectedTables.size() - 1 - i][word >> 8 * i & 0xFF];
    }
    word = next;
  }
  for (const char c : bytes) {
    word = word >> 8 ^ kReflectedTables[0][(word ^ static_cast<std::uint8_t>(c)) & 0xFF];
  }
  return word;
}

constexpr Table kPlainTable = [] {
  Table table = {};
  for (std::uint64_t i = 0; i < table.size(); ++i) {
    std::uint64_t word = i << 56;
    for (int bit = 0; bit < 8; ++bit) word = word << 1 ^ ((word >> 63) * kPlainPolynomial);
    table[i] = word;
  }
  return table;
}();

}  // namespace

std::uint64_t CodedPageSum(std::string_view bytes) {
  std::uint32_t sum = NextSeed(static_cast<std::uint32_t>(bytes.size()));
  ForEachPiece(bytes, [&sum](std::string_view piece) { sum = PageSum(sum, piece); });
  return sum;
}

std::uint64_t CodedPageCrc(std::string_view bytes) {
  const std::uint64_t first = NextSeed(std::uint64_t{bytes.size()});
  const std::uint64_t second = NextSeed(first);
  std::uint64_t word = ~(second << 32 | first);
  ForEachPiece(bytes, [&word](std::string_view piece) { word = Reflected(word, piece); });
  return word;
}

std::uint64_t CodedHeadCrc(std::string_view bytes) {
  const std::uint64_t first = NextSeed(std::uint64_t{bytes.size()});
  const std::uint64_t second = NextSeed(first);
  std::uint64_t word = ~((first << 32) + second + bytes.size());
  ForEachPiece(bytes, [&word](std::string_view piece) {
    for (const char c : piece) {
      word = word << 8 ^ kPlainTable[word >> 56 ^ static_cast<std::uint8_t>(c)];
    }
  });
  return ~word;
}

}  // namespace zdx::dwg

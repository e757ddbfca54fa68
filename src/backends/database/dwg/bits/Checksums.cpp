#include "backends/database/dwg/bits/Checksums.h"

#include <algorithm>
#include <array>

namespace zdx::dwg {
namespace {

template <class Word>
constexpr std::array<Word, 256> ReflectedTable(Word polynomial) {
  std::array<Word, 256> table = {};
  for (std::size_t i = 0; i < table.size(); ++i) {
    Word word = static_cast<Word>(i);
    for (int bit = 0; bit < 8; ++bit) {
      const bool falls = (word & 1) != 0;
      word = static_cast<Word>(word >> 1);
      if (falls) word = static_cast<Word>(word ^ polynomial);
    }
    table[i] = word;
  }
  return table;
}

constexpr auto kTable16 = ReflectedTable<std::uint16_t>(0xA001);
constexpr auto kTable32 = ReflectedTable<std::uint32_t>(0xEDB88320);

template <class Word>
Word Reflected(const std::array<Word, 256>& table, std::string_view bytes, Word word) {
  for (const char c : bytes) {
    const auto at = static_cast<std::uint8_t>(word ^ static_cast<std::uint8_t>(c));
    word = static_cast<Word>(word >> 8 ^ table[at]);
  }
  return word;
}

constexpr std::uint32_t kSumModulus = 0xFFF1;
// How many bytes are summed before the sums are reduced.
constexpr std::size_t kSumChunk = 0x15B0;

// Adds a block as if byte after byte; without the chain of sums it takes a fraction of the time.
constexpr std::size_t kSumBlock = 16;
void SumBlock(const char* bytes, std::uint32_t& low, std::uint32_t& high) {
  std::uint32_t sum = 0;
  std::uint32_t weighted = 0;
  for (std::size_t i = 0; i < kSumBlock; ++i) {
    const std::uint32_t byte = static_cast<std::uint8_t>(bytes[i]);
    sum += byte;
    weighted += static_cast<std::uint32_t>(kSumBlock - i) * byte;
  }
  high += static_cast<std::uint32_t>(kSumBlock) * low + weighted;
  low += sum;
}

}  // namespace

std::uint16_t Crc16(std::string_view bytes, std::uint16_t seed) {
  return Reflected(kTable16, bytes, seed);
}

std::uint32_t Crc32(std::string_view bytes) { return ~Reflected(kTable32, bytes, ~0u); }

std::uint32_t PageSum(std::uint32_t seed, std::string_view bytes) {
  std::uint32_t low = seed & 0xFFFF;
  std::uint32_t high = seed >> 16;
  while (!bytes.empty()) {
    const std::string_view chunk = bytes.substr(0, kSumChunk);
    std::size_t at = 0;
    for (; chunk.size() - at >= kSumBlock; at += kSumBlock) SumBlock(chunk.data() + at, low, high);
    for (; at < chunk.size(); ++at) {
      low += static_cast<std::uint8_t>(chunk[at]);
      high += low;
    }
    low %= kSumModulus;
    high %= kSumModulus;
    bytes.remove_prefix(chunk.size());
  }
  return high << 16 | low;
}

}  // namespace zdx::dwg

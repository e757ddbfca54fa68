#include <gtest/gtest.h>

#include <array>

#include "support/dwg/Bytes.h"
#include "support/dwg/ReedSolomon.h"

namespace dwg {
namespace {

struct Field {
  explicit Field(unsigned polynomial) {
    unsigned power = 1;
    for (unsigned i = 0; i < 255; ++i) {
      powers[i] = power;
      logarithms[power] = i;
      power <<= 1;
      if (power >= 256) power ^= polynomial;
    }
  }

  std::array<unsigned, 255> powers{};
  std::array<unsigned, 256> logarithms{};
};

// Byte `i` of word `word` is the coefficient of x to the i-th.
unsigned Value(const Field& field, const std::string& words, std::size_t word, unsigned root) {
  const std::size_t count = words.size() / kWordSize;
  unsigned sum = 0;
  for (unsigned i = 0; i < kWordSize; ++i) {
    const auto byte = static_cast<unsigned char>(words[word + i * count]);
    if (byte != 0) sum ^= field.powers[(field.logarithms[byte] + i * root) % 255];
  }
  return sum;
}

std::string Noise(std::size_t size) {
  std::string bytes;
  for (unsigned seed = 1; bytes.size() < size; seed = seed * 1664525 + 1013904223) {
    bytes += static_cast<char>(seed >> 24);
  }
  return bytes;
}

TEST(ReedSolomon, EveryWordIsZeroAtAllRoots) {
  for (const WordShape& shape : {kSystemWords, kDataWords}) {
    const Field field(shape.fieldPolynomial);
    const std::string words = Protected(Noise(2 * shape.dataSize + 17), shape);
    ASSERT_EQ(words.size(), 3 * kWordSize);
    for (std::size_t word = 0; word < 3; ++word) {
      for (unsigned root = 1; root <= kWordSize - shape.dataSize; ++root) {
        EXPECT_EQ(Value(field, words, word, root), 0u) << word << " at " << root;
      }
    }
  }
}

// A word that is zero but for its last byte leaves the divisor itself.
TEST(ReedSolomon, TheDivisorIsTheOneThatFilesWereMadeWith) {
  const auto parity = [](const WordShape& shape) {
    std::string data(shape.dataSize, '\0');
    data.back() = 1;
    return Protected(data, shape).substr(shape.dataSize);
  };
  EXPECT_EQ(parity(kSystemWords), FromHex("908AB8BBFEB1416CAB53283BE523E313"));
  EXPECT_EQ(parity(kDataWords), FromHex("BC5861E9"));
}

TEST(ReedSolomon, TheBytesOfTheWordsTakeTurns) {
  std::string data(2 * kDataWords.dataSize, '\0');
  data[1] = 'a';
  data[kDataWords.dataSize] = 'b';
  const std::string words = Protected(data, kDataWords);
  EXPECT_EQ(words[2], 'a');
  EXPECT_EQ(words[1], 'b');
}

}  // namespace
}  // namespace dwg

#include "support/dwg/ReedSolomon.h"

#include <vector>

namespace dwg {
namespace {

using Coefficients = std::vector<unsigned>;

unsigned Product(unsigned a, unsigned b, unsigned polynomial) {
  unsigned product = 0;
  for (; b != 0; b >>= 1) {
    if ((b & 1) != 0) product ^= a;
    a <<= 1;
    if ((a & 0x100) != 0) a ^= polynomial;
  }
  return product;
}

// Half of `value`: the field's generator is 2.
unsigned Halved(unsigned value, unsigned polynomial) {
  return (value & 1) != 0 ? (value ^ polynomial) >> 1 : value >> 1;
}

// The polynomial whose zeros are the first powers of one half, highest coefficient first.
Coefficients Generator(const WordShape& shape) {
  Coefficients generator = {1};
  unsigned root = 1;
  for (std::size_t i = shape.dataSize; i < kWordSize; ++i) {
    root = Halved(root, shape.fieldPolynomial);
    generator.push_back(0);
    for (std::size_t j = generator.size() - 1; j > 0; --j) {
      generator[j] ^= Product(generator[j - 1], root, shape.fieldPolynomial);
    }
  }
  return generator;
}

// What is left of the word's data, followed by zeros, divided by the generator.
std::string Parity(std::string_view data, const Coefficients& generator, unsigned polynomial) {
  Coefficients rest(generator.size() - 1, 0);
  for (const char byte : data) {
    const unsigned factor = rest[0] ^ static_cast<unsigned char>(byte);
    rest.erase(rest.begin());
    rest.push_back(0);
    for (std::size_t i = 0; i < rest.size(); ++i) {
      rest[i] ^= Product(factor, generator[i + 1], polynomial);
    }
  }
  return {rest.begin(), rest.end()};
}

}  // namespace

std::size_t WordCount(std::size_t size, const WordShape& shape) {
  return (size + shape.dataSize - 1) / shape.dataSize;
}

std::string Protected(std::string_view bytes, const WordShape& shape) {
  const std::size_t count = WordCount(bytes.size(), shape);
  const Coefficients generator = Generator(shape);
  std::string words(count * kWordSize, '\0');
  for (std::size_t i = 0; i < count; ++i) {
    std::string word(bytes.substr(i * shape.dataSize, shape.dataSize));
    word.resize(shape.dataSize, '\0');
    word += Parity(word, generator, shape.fieldPolynomial);
    for (std::size_t j = 0; j < kWordSize; ++j) words[i + j * count] = word[j];
  }
  return words;
}

}  // namespace dwg

#include "support/dwg/ReedSolomon.h"

#include <array>
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

// Divides by the generator, whose multiples by every byte it keeps.
class Divider {
 public:
  explicit Divider(const WordShape& shape) {
    const Coefficients generator = Generator(shape);
    for (unsigned factor = 0; factor < multiples_.size(); ++factor) {
      for (std::size_t i = 1; i < generator.size(); ++i) {
        multiples_[factor] +=
            static_cast<char>(Product(factor, generator[i], shape.fieldPolynomial));
      }
    }
  }

  // What is left of the word's data, followed by zeros.
  std::string Rest(std::string_view data) const {
    std::string rest(multiples_[0].size(), '\0');
    for (const char byte : data) {
      const std::string& multiple = multiples_[static_cast<unsigned char>(rest[0] ^ byte)];
      for (std::size_t i = 0; i + 1 < rest.size(); ++i) {
        rest[i] = static_cast<char>(rest[i + 1] ^ multiple[i]);
      }
      rest.back() = multiple.back();
    }
    return rest;
  }

 private:
  std::array<std::string, 256> multiples_;
};

}  // namespace

std::size_t WordCount(std::size_t size, const WordShape& shape) {
  return (size + shape.dataSize - 1) / shape.dataSize;
}

std::string Protected(std::string_view bytes, const WordShape& shape) {
  const std::size_t count = WordCount(bytes.size(), shape);
  const Divider divider(shape);
  std::string words(count * kWordSize, '\0');
  for (std::size_t i = 0; i < count; ++i) {
    std::string word(bytes.substr(i * shape.dataSize, shape.dataSize));
    word.resize(shape.dataSize, '\0');
    word += divider.Rest(word);
    for (std::size_t j = 0; j < kWordSize; ++j) words[i + j * count] = word[j];
  }
  return words;
}

}  // namespace dwg

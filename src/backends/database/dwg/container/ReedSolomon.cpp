#include "backends/database/dwg/container/ReedSolomon.h"

#include <array>
#include <cstdint>
#include <vector>

namespace zdx::dwg {
namespace {

using Byte = std::uint8_t;
using Word = std::array<Byte, kWordSize>;

// The numbers 0 to 255 as a field: sums are exclusive or, products go by logarithms.
class Field {
 public:
  explicit constexpr Field(unsigned polynomial) {
    unsigned power = 1;
    for (std::size_t i = 0; i < kWordSize; ++i) {
      power_[i] = static_cast<Byte>(power);
      log_[power] = static_cast<Byte>(i);
      power <<= 1;
      if (power > 0xFF) power ^= polynomial;
    }
  }

  constexpr Byte Power(std::size_t exponent) const { return power_[exponent % kWordSize]; }
  constexpr Byte Times(Byte left, Byte right) const {
    if (left == 0 || right == 0) return 0;
    return Power(std::size_t{log_[left]} + log_[right]);
  }
  // `divisor` isn't 0.
  constexpr Byte Over(Byte dividend, Byte divisor) const {
    return dividend == 0 ? Byte{0} : Power(kWordSize + log_[dividend] - log_[divisor]);
  }

 private:
  std::array<Byte, kWordSize> power_ = {};
  std::array<Byte, 256> log_ = {};
};

struct Code {
  Field field;
  std::size_t parity;
};

constexpr Code kSystemCode = {Field(0x169), kWordSize - DataSize(ParityKind::kSystemPage)};
constexpr Code kDataCode = {Field(0x11D), kWordSize - DataSize(ParityKind::kDataPage)};

// Lowest coefficient first.
using Polynomial = std::vector<Byte>;

Byte ValueAt(const Field& field, const Polynomial& polynomial, Byte x) {
  Byte value = 0;
  for (std::size_t i = polynomial.size(); i > 0; --i) {
    value = static_cast<Byte>(field.Times(value, x) ^ polynomial[i - 1]);
  }
  return value;
}

// The word's values at the roots of the code: all 0 if the word is right.
Polynomial Syndromes(const Code& code, const Word& word) {
  const Polynomial whole(word.begin(), word.end());
  Polynomial syndromes;
  for (std::size_t i = 1; i <= code.parity; ++i) {
    syndromes.push_back(ValueAt(code.field, whole, code.field.Power(i)));
  }
  return syndromes;
}

// The shortest recurrence that gives the syndromes; its roots tell the wrong places (the algorithm
// of Berlekamp and Massey).
Polynomial Locator(const Field& field, const Polynomial& syndromes) {
  Polynomial locator = {1};
  Polynomial before = {1};
  std::size_t errors = 0;
  std::size_t gap = 1;
  Byte lastDiscrepancy = 1;
  for (std::size_t n = 0; n < syndromes.size(); ++n, ++gap) {
    Byte discrepancy = syndromes[n];
    for (std::size_t i = 1; i <= errors && i < locator.size(); ++i) {
      discrepancy = static_cast<Byte>(discrepancy ^ field.Times(locator[i], syndromes[n - i]));
    }
    if (discrepancy == 0) continue;
    const Polynomial old = locator;
    const Byte factor = field.Over(discrepancy, lastDiscrepancy);
    if (locator.size() < before.size() + gap) locator.resize(before.size() + gap);
    for (std::size_t i = 0; i < before.size(); ++i) {
      locator[i + gap] = static_cast<Byte>(locator[i + gap] ^ field.Times(factor, before[i]));
    }
    if (2 * errors > n) continue;
    errors = n + 1 - errors;
    before = old;
    lastDiscrepancy = discrepancy;
    gap = 0;
  }
  while (locator.size() > 1 && locator.back() == 0) locator.pop_back();
  return locator;
}

// The syndromes times the locator, as far as there are syndromes.
Polynomial Evaluator(const Field& field, const Polynomial& syndromes, const Polynomial& locator) {
  Polynomial product(syndromes.size());
  for (std::size_t i = 0; i < locator.size(); ++i) {
    for (std::size_t j = 0; i + j < product.size(); ++j) {
      product[i + j] = static_cast<Byte>(product[i + j] ^ field.Times(locator[i], syndromes[j]));
    }
  }
  return product;
}

Polynomial Derivative(Polynomial polynomial) {
  // In this field the even powers vanish and the odd ones keep their coefficient.
  for (std::size_t i = 0; i + 1 < polynomial.size(); ++i) {
    polynomial[i] = i % 2 == 0 ? polynomial[i + 1] : Byte{0};
  }
  polynomial.pop_back();
  return polynomial;
}

void Mend(const Code& code, Word& word) {
  const Polynomial syndromes = Syndromes(code, word);
  if (syndromes == Polynomial(code.parity)) return;
  const Polynomial locator = Locator(code.field, syndromes);
  const std::size_t errors = locator.size() - 1;
  if (errors == 0 || errors > code.parity / 2) return;
  const Polynomial evaluator = Evaluator(code.field, syndromes, locator);
  const Polynomial derivative = Derivative(locator);
  Word mended = word;
  std::size_t found = 0;
  for (std::size_t place = 0; place < kWordSize; ++place) {
    const Byte inverse = code.field.Power(kWordSize - place);
    if (ValueAt(code.field, locator, inverse) != 0) continue;
    const Byte slope = ValueAt(code.field, derivative, inverse);
    if (slope == 0) return;
    const Byte error = code.field.Over(ValueAt(code.field, evaluator, inverse), slope);
    mended[place] = static_cast<Byte>(mended[place] ^ error);
    ++found;
  }
  if (found == errors) word = mended;
}

}  // namespace

std::string TakeData(std::string_view page, std::size_t words, ParityKind kind) {
  const std::size_t size = DataSize(kind);
  std::string data(words * size, '\0');
  for (std::size_t j = 0; j < size; ++j) {
    const char* const from = page.data() + j * words;
    for (std::size_t i = 0; i < words; ++i) data[i * size + j] = from[i];
  }
  return data;
}

std::string TakeMendedData(std::string_view page, std::size_t words, ParityKind kind) {
  const Code& code = kind == ParityKind::kSystemPage ? kSystemCode : kDataCode;
  const std::size_t size = DataSize(kind);
  std::string data;
  data.reserve(words * size);
  Word word;
  for (std::size_t i = 0; i < words; ++i) {
    for (std::size_t j = 0; j < kWordSize; ++j) word[j] = static_cast<Byte>(page[i + j * words]);
    Mend(code, word);
    data.append(word.begin(), word.begin() + static_cast<std::ptrdiff_t>(size));
  }
  return data;
}

}  // namespace zdx::dwg

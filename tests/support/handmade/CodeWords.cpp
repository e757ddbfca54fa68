#include "support/handmade/CodeWords.h"

#include "support/handmade/HandMade.h"

namespace handmade {
namespace {

// The generators by their coefficients, highest first, as the format gives them.
const std::vector<unsigned> kSystemGenerator = {0x01, 0x90, 0x8A, 0xB8, 0xBB, 0xFE,
                                                0xB1, 0x41, 0x6C, 0xAB, 0x53, 0x28,
                                                0x3B, 0xE5, 0x23, 0xE3, 0x13};
const std::vector<unsigned> kDataGenerator = {0x01, 0xBC, 0x58, 0x61, 0xE9};
constexpr unsigned kSystemField = 0x169;
constexpr unsigned kDataField = 0x11D;

unsigned Product(unsigned left, unsigned right, unsigned field) {
  unsigned product = 0;
  for (; right != 0; right >>= 1) {
    if ((right & 1) != 0) product ^= left;
    left <<= 1;
    if (left > 0xFF) left ^= field;
  }
  return product;
}

std::uint64_t NextSeed(std::uint64_t seed) { return seed * 0x343FD + 0x269EC3; }

}  // namespace

// The first byte counts as the highest coefficient; what is left of the division is the parity.
std::string WithParity(std::string data, Word kind) {
  const auto& generator = kind == Word::kSystem ? kSystemGenerator : kDataGenerator;
  const unsigned field = kind == Word::kSystem ? kSystemField : kDataField;
  const std::size_t parity = generator.size() - 1;
  std::string rest = data + std::string(parity, '\0');
  for (std::size_t at = 0; at < data.size(); ++at) {
    const auto factor = static_cast<std::uint8_t>(rest[at]);
    for (std::size_t i = 0; i < generator.size(); ++i) {
      rest[at + i] = static_cast<char>(static_cast<std::uint8_t>(rest[at + i]) ^
                                       Product(generator[i], factor, field));
    }
  }
  return data + rest.substr(data.size());
}

std::string InterleavedPage(std::string data, Word kind) {
  const std::size_t size = kind == Word::kSystem ? 239 : 251;
  const std::size_t words = (data.size() + size - 1) / size;
  data.resize(words * size, '\0');
  std::string page(words * 255, '\0');
  for (std::size_t i = 0; i < words; ++i) {
    const std::string word = WithParity(data.substr(i * size, size), kind);
    for (std::size_t j = 0; j < word.size(); ++j) page[i + j * words] = word[j];
  }
  return page;
}

std::string CheckOrder(std::string_view bytes) {
  constexpr std::string_view kRests[] = {"",     "0",     "01",     "012",
                                         "2301", "23014", "230145", "2301456"};
  std::string ordered;
  while (bytes.size() >= 8) {
    for (const char at : std::string_view("67452301")) {
      ordered.push_back(bytes[static_cast<std::size_t>(at - '0')]);
    }
    bytes.remove_prefix(8);
  }
  for (const char at : kRests[bytes.size()]) {
    ordered.push_back(bytes[static_cast<std::size_t>(at - '0')]);
  }
  return ordered;
}

std::uint64_t SlowCodedSum(std::string_view bytes) {
  const auto seed = static_cast<std::uint32_t>(NextSeed(bytes.size()));
  return SlowPageSum(seed, CheckOrder(bytes));
}

std::uint64_t SlowCodedCrc(std::string_view bytes) {
  const std::uint64_t first = NextSeed(bytes.size());
  std::uint64_t check = ~(NextSeed(first) << 32 | first);
  for (const char c : CheckOrder(bytes)) {
    check ^= static_cast<std::uint8_t>(c);
    for (int bit = 0; bit < 8; ++bit) {
      check = (check & 1) != 0 ? check >> 1 ^ 0x95AC9329AC4BC9B5u : check >> 1;
    }
  }
  return check;
}

std::uint64_t SlowHeadCrc(std::string_view bytes) {
  const std::uint64_t first = NextSeed(bytes.size());
  std::uint64_t check = ~((first << 32) + NextSeed(first) + bytes.size());
  for (const char c : CheckOrder(bytes)) {
    check ^= std::uint64_t{static_cast<std::uint8_t>(c)} << 56;
    for (int bit = 0; bit < 8; ++bit) {
      check = check >> 63 != 0 ? check << 1 ^ 0x42F0E1EBA9EA3693u : check << 1;
    }
  }
  return ~check;
}

}  // namespace handmade

// Numbers that stand in bytes, low part first.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zdx {

// The number in the bytes from `bytes` on, of which there must be as many as the number has.
template <std::unsigned_integral Number, class Byte>
constexpr Number LittleEndian(const Byte* bytes) {
  static_assert(sizeof(Byte) == 1);
  std::uint64_t number = 0;
  for (std::size_t i = sizeof(Number); i > 0; --i) {
    number = number << 8 | static_cast<std::uint8_t>(bytes[i - 1]);
  }
  return static_cast<Number>(number);
}

// The same of the first bytes of `bytes`, and of those at `at`.
template <std::unsigned_integral Number>
constexpr Number LittleEndian(std::string_view bytes) {
  return LittleEndian<Number>(bytes.data());
}
template <std::unsigned_integral Number>
constexpr Number LittleEndianAt(std::string_view bytes, std::size_t at) {
  return LittleEndian<Number>(bytes.data() + at);
}

}  // namespace zdx

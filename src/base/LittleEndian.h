// Numbers that stand in bytes, low part first.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zdx {

// The number in the first bytes of `bytes`, which must hold as many as the number has.
template <std::unsigned_integral Number>
constexpr Number LittleEndian(std::string_view bytes) {
  Number number = 0;
  for (std::size_t i = sizeof(Number); i > 0; --i) {
    number = static_cast<Number>(static_cast<std::uint64_t>(number) << 8 |
                                 static_cast<std::uint8_t>(bytes[i - 1]));
  }
  return number;
}

// The same at `at`, which must be that far from the end.
template <std::unsigned_integral Number>
constexpr Number LittleEndianAt(std::string_view bytes, std::size_t at) {
  return LittleEndian<Number>(bytes.substr(at));
}

}  // namespace zdx

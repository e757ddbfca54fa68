// Integers as files store them.
#pragma once

#include <cstddef>
#include <cstdint>

namespace ZDXEngine {

// The unsigned integer whose bytes stand at `bytes`, the lowest first.
template <class Integer>
constexpr Integer FromLittleEndian(const std::uint8_t* bytes) {
  std::uint32_t value = 0;
  static_assert(sizeof(Integer) <= sizeof value);
  for (std::size_t i = sizeof(Integer); i-- > 0;) value = (value << 8) | bytes[i];
  return static_cast<Integer>(value);
}

}  // namespace ZDXEngine

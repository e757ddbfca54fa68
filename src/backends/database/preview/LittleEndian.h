// Numbers in the bytes of a picture; the caller made sure that they are there.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zdx::preview {

inline std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i > 0; --i) {
    number = number << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return number;
}

inline std::uint16_t Load16(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint16_t>(NumberAt(bytes, at, 2));
}

inline std::uint32_t Load32(std::string_view bytes, std::size_t at) {
  return NumberAt(bytes, at, 4);
}

}  // namespace zdx::preview

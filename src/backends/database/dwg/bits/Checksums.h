// The checks that protect the parts of a file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zdx::dwg {

// What the 16-bit check of everything but an empty run begins with.
inline constexpr std::uint16_t kCrcSeed = 0xC0C1;

// The bytes of a stored 16-bit check.
inline constexpr std::size_t kCrcSize = 2;

// The 16-bit check of head, header variables, classes, object map and records.
std::uint16_t Crc16(std::string_view bytes, std::uint16_t seed = kCrcSeed);

// The common 32-bit check.
std::uint32_t Crc32(std::string_view bytes);

// The sum of a page.  Sums go on: `seed` is the sum of what stands before.
std::uint32_t PageSum(std::uint32_t seed, std::string_view bytes);

}  // namespace zdx::dwg

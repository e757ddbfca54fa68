#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dwg {

// Of records, of sections between marks and of the pages of the object map.
std::uint16_t Crc16(std::string_view bytes);

// Of the encrypted header of the paged files.
std::uint32_t Crc32(std::string_view bytes);

// Of the pages of AC1018, AC1024 and later.
std::uint32_t PageSum(std::uint32_t seed, std::string_view bytes);

// The first `count` bytes of the sequence that hides the header of these files and fills their
// pages.
std::string MaskBytes(std::size_t count);

}  // namespace dwg

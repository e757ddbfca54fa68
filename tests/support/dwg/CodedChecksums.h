#pragma once

#include <cstdint>
#include <string_view>

namespace dwg {

// The checks of AC1021, which all take the bytes in an order of their own.

// Of a data page's contents before they are compressed.
std::uint32_t CodedPageSum(std::string_view bytes);

// Of data pages and maps.
std::uint64_t CodedCrc64(std::string_view bytes);

// Of the head page.
std::uint64_t HeadCrc64(std::string_view bytes);

}  // namespace dwg

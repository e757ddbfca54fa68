// Words of the error-correcting code, made by long division, and the slow checks of AC1021.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace handmade {

// 239 bytes of data and 16 of parity, or 251 and 4.
enum class Word { kSystem, kData };

// `data`, which has that many bytes, with its parity behind it.
std::string WithParity(std::string data, Word kind);
// A page of the words that `data` fills, zeros behind it: byte j of word i at i + j * words.
std::string InterleavedPage(std::string data, Word kind);

// `bytes` in the order in which checks take them.
std::string CheckOrder(std::string_view bytes);
std::uint64_t SlowCodedSum(std::string_view bytes);
std::uint64_t SlowCodedCrc(std::string_view bytes);
std::uint64_t SlowHeadCrc(std::string_view bytes);

}  // namespace handmade

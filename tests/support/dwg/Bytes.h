#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dwg {

// `number`'s low `size` bytes, low byte first.
std::string NumberBytes(std::uint64_t number, std::size_t size);
void AppendNumber(std::string& bytes, std::uint64_t number, std::size_t size);
void AppendByte(std::string& bytes, std::size_t number);
// Overwrites `size` bytes from `at` on.
void PutNumber(std::string& bytes, std::size_t at, std::uint64_t number, std::size_t size);

// The bytes that pairs of hexadecimal digits tell.
std::string FromHex(std::string_view digits);

// With every bit turned: how the mark at the end of a part is made from the one at its start.
std::string Inverted(std::string bytes);

std::size_t RoundedUp(std::size_t size, std::size_t unit);

}  // namespace dwg

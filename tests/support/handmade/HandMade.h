// Bits and bytes written by hand, and slow checks of them.
//
// Nothing here shares code with the reader: the checks go bit by bit, as the format defines them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace handmade {

// The low `size` bytes of `value`, low byte first.
std::string Low(std::uint64_t value, unsigned size);
inline std::string Low16(std::uint64_t value) { return Low(value, 2); }
inline std::string Low32(std::uint64_t value) { return Low(value, 4); }
inline std::string Low64(std::uint64_t value) { return Low(value, 8); }
// Two bytes, high byte first.
std::string High16(unsigned value);
// The characters of plain ASCII in UTF-16, low byte first.
std::string Wide(std::string_view text);
// `bytes` with zeros behind them, up to `size` bytes.
std::string Padded(std::string bytes, std::size_t size);
// Padded to a multiple of `unit`.
std::string RoundedUp(std::string bytes, std::size_t unit);
// `bytes` with the one at `at` changed.
std::string Damaged(std::string bytes, std::size_t at);
// Bytes that don't repeat soon, always the same.
std::string Noise(std::size_t size, std::uint32_t seed = 1);

std::uint16_t SlowCrc16(std::string_view bytes, unsigned seed = 0xC0C1);
std::uint32_t SlowCrc32(std::string_view bytes);
std::uint32_t SlowPageSum(std::uint32_t seed, std::string_view bytes);

// A run of bits, written from its front.
class Bits {
 public:
  // Zeros and ones; blanks are for the eye.
  Bits& Plain(std::string_view zerosAndOnes);
  Bits& Number(std::uint64_t value, unsigned bits);
  Bits& Raw(std::string_view bytes);
  Bits& B(bool value) { return Number(value ? 1 : 0, 1); }
  Bits& BB(unsigned value) { return Number(value, 2); }
  Bits& RC(unsigned value) { return Number(value, 8); }
  Bits& RS(unsigned value) { return Raw(Low16(value)); }
  Bits& RL(std::uint32_t value) { return Raw(Low32(value)); }
  Bits& RD(double value);
  // In the shortest form.
  Bits& BS(unsigned value);
  Bits& BL(std::uint32_t value);
  Bits& BD(double value);
  // A reference of that code; 0 is none.
  Bits& H(unsigned code, std::uint64_t value);
  // A text of the code page, without a terminator.
  Bits& T(std::string_view text) { return BS(static_cast<unsigned>(text.size())).Raw(text); }
  // A text of the string stream.
  Bits& WideT(std::string_view text) {
    return BS(static_cast<unsigned>(text.size())).Raw(Wide(text));
  }
  Bits& Append(const Bits& more);

  std::size_t size() const { return bits_.size(); }
  // Filled up to a byte with zeros.
  std::string Bytes() const;

 private:
  std::string bits_;
};

}  // namespace handmade

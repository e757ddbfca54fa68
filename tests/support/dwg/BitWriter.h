#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace dwg {

// Bits from the most significant end of each byte on, in the format's own codes, after which the
// functions are called.
class BitWriter {
 public:
  // Plain bits.
  void B(bool bit);
  void Bits(std::uint64_t value, std::size_t count);
  void BB(unsigned value) { Bits(value, 2); }

  // Whole bytes, low byte first, wherever they begin.
  void RC(unsigned value) { Number(value, 1); }
  void RS(unsigned value) { Number(value, 2); }
  void RL(std::uint64_t value) { Number(value, 4); }
  void RD(double value);
  void Raw(std::string_view bytes);

  // Short forms of numbers of 16, 32 and 64 bits and of doubles.  Negative numbers come as their
  // two's complement.
  void BS(std::int64_t value);
  void BL(std::int64_t value);
  void BLL(std::uint64_t value);
  void BD(double value);
  // What differs from `expected`.
  void DD(double value, double expected);

  // A type of AC1024 and later.
  void OT(unsigned type);

  // A reference: a code and the bytes of `value`, high byte first.
  void Reference(unsigned code, std::uint64_t value);

  std::size_t Size() const { return size_; }
  void Append(const BitWriter& other);
  // Overwrites the 32 bits from `at` on.
  void PutRL(std::size_t at, std::uint64_t value);

  // With zero bits up to the next whole byte.
  const std::string& Bytes() const { return bytes_; }

 private:
  void Number(std::uint64_t value, std::size_t size);

  std::string bytes_;
  std::size_t size_ = 0;
};

// Numbers of any length in pieces, low part first; the highest bit of a piece says that more
// follow.  Pieces of 7 bits, unsigned and signed, and of 15 bits.
std::string Umc(std::uint64_t value);
std::string Mc(std::int64_t value);
std::string Ms(std::size_t value);

}  // namespace dwg

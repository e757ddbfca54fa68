#include "support/dwg/BitWriter.h"

#include <bit>

#include "support/dwg/Bytes.h"

namespace dwg {
namespace {

constexpr unsigned kFirstClassType = 0x1F0;
constexpr std::uint64_t kPieceBits = 0x7F;
constexpr std::uint64_t kLastSignedBits = 0x3F;

std::uint64_t BitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

std::string_view Middle(const std::string& bytes, std::size_t at, std::size_t size) {
  return std::string_view(bytes).substr(at, size);
}

}  // namespace

void BitWriter::B(bool bit) {
  if (size_ % 8 == 0) bytes_ += '\0';
  if (bit) bytes_.back() = static_cast<char>(bytes_.back() | (0x80 >> (size_ % 8)));
  ++size_;
}

void BitWriter::Bits(std::uint64_t value, std::size_t count) {
  for (std::size_t i = count; i > 0; --i) B((value >> (i - 1) & 1) != 0);
}

void BitWriter::Number(std::uint64_t value, std::size_t size) { Raw(NumberBytes(value, size)); }

void BitWriter::RD(double value) { Number(BitsOf(value), sizeof value); }

void BitWriter::Raw(std::string_view bytes) {
  if (size_ % 8 == 0) {
    bytes_ += bytes;
    size_ += bytes.size() * 8;
    return;
  }
  for (const char byte : bytes) Bits(static_cast<unsigned char>(byte), 8);
}

void BitWriter::BS(std::int64_t value) {
  const std::int64_t number = value & 0xFFFF;
  if (number == 0) return BB(2);
  if (number == 256) return BB(3);
  BB(number < 256 ? 1 : 0);
  Number(static_cast<std::uint64_t>(number), number < 256 ? 1 : 2);
}

void BitWriter::BL(std::int64_t value) {
  const std::int64_t number = value & 0xFFFFFFFF;
  if (number == 0) return BB(2);
  BB(number < 256 ? 1 : 0);
  Number(static_cast<std::uint64_t>(number), number < 256 ? 1 : 4);
}

void BitWriter::BLL(std::uint64_t value) {
  std::size_t size = 0;
  while (size < 7 && value >> (8 * size) != 0) ++size;
  Bits(size, 3);
  Number(value, size);
}

void BitWriter::BD(double value) {
  if (BitsOf(value) == BitsOf(1.0)) return BB(1);
  if (BitsOf(value) == BitsOf(0.0)) return BB(2);
  BB(0);
  RD(value);
}

void BitWriter::DD(double value, double expected) {
  const std::uint64_t difference = BitsOf(value) ^ BitsOf(expected);
  const std::string bytes = NumberBytes(BitsOf(value), sizeof value);
  if (difference == 0) {
    BB(0);
  } else if (difference >> 32 == 0) {
    BB(1);
    Raw(Middle(bytes, 0, 4));
  } else if (difference >> 48 == 0) {
    BB(2);
    Raw(Middle(bytes, 4, 2));
    Raw(Middle(bytes, 0, 4));
  } else {
    BB(3);
    Raw(bytes);
  }
}

void BitWriter::OT(unsigned type) {
  if (type < 256) {
    BB(0);
    RC(type);
  } else if (type >= kFirstClassType && type < kFirstClassType + 256) {
    BB(1);
    RC(type - kFirstClassType);
  } else {
    BB(2);
    RS(type);
  }
}

void BitWriter::Reference(unsigned code, std::uint64_t value) {
  std::size_t count = 0;
  while (count < 8 && value >> (8 * count) != 0) ++count;
  Bits(code, 4);
  Bits(count, 4);
  Bits(value, 8 * count);
}

void BitWriter::Append(const BitWriter& other) {
  const std::size_t whole = other.size_ / 8;
  Raw(Middle(other.bytes_, 0, whole));
  for (std::size_t bit = whole * 8; bit < other.size_; ++bit) {
    B((static_cast<unsigned char>(other.bytes_[bit / 8]) >> (7 - bit % 8) & 1) != 0);
  }
}

void BitWriter::PutRL(std::size_t at, std::uint64_t value) {
  BitWriter number;
  number.RL(value);
  for (std::size_t i = 0; i < number.size_; ++i) {
    const std::size_t bit = at + i;
    const auto mask = static_cast<char>(0x80 >> (bit % 8));
    const bool isSet = (static_cast<unsigned char>(number.bytes_[i / 8]) >> (7 - i % 8) & 1) != 0;
    char& byte = bytes_[bit / 8];
    byte = static_cast<char>(isSet ? byte | mask : byte & ~mask);
  }
}

std::string Umc(std::uint64_t value) {
  std::string bytes;
  for (; value > kPieceBits; value >>= 7) bytes += static_cast<char>((value & kPieceBits) | 0x80);
  return bytes + static_cast<char>(value);
}

std::string Mc(std::int64_t value) {
  const bool isNegative = value < 0;
  auto rest = static_cast<std::uint64_t>(isNegative ? -value : value);
  std::string bytes;
  for (; rest > kLastSignedBits; rest >>= 7) {
    bytes += static_cast<char>((rest & kPieceBits) | 0x80);
  }
  return bytes + static_cast<char>(isNegative ? rest | 0x40 : rest);
}

std::string Ms(std::size_t value) {
  std::string bytes;
  for (; value > 0x7FFF; value >>= 15) AppendNumber(bytes, (value & 0x7FFF) | 0x8000, 2);
  AppendNumber(bytes, value, 2);
  return bytes;
}

}  // namespace dwg

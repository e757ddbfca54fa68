#include "support/handmade/HandMade.h"

#include <bit>

namespace handmade {

std::string Low(std::uint64_t value, unsigned size) {
  std::string bytes;
  for (unsigned i = 0; i < size; ++i) bytes.push_back(static_cast<char>(value >> 8 * i & 0xFF));
  return bytes;
}

std::string High16(unsigned value) {
  return {static_cast<char>(value >> 8 & 0xFF), static_cast<char>(value & 0xFF)};
}

std::string Wide(std::string_view text) {
  std::string bytes;
  for (const char c : text) bytes.append({c, '\0'});
  return bytes;
}

std::string Padded(std::string bytes, std::size_t size) {
  bytes.resize(size, '\0');
  return bytes;
}

std::string RoundedUp(std::string bytes, std::size_t unit) {
  return Padded(bytes, (bytes.size() + unit - 1) / unit * unit);
}

std::string Damaged(std::string bytes, std::size_t at) {
  bytes.at(at) = static_cast<char>(bytes.at(at) ^ 0x5A);
  return bytes;
}

std::string Noise(std::size_t size, std::uint32_t seed) {
  std::string bytes;
  for (std::size_t i = 0; i < size; ++i) {
    seed = seed * 1664525 + 1013904223;
    bytes.push_back(static_cast<char>(seed >> 24));
  }
  return bytes;
}

std::uint16_t SlowCrc16(std::string_view bytes, unsigned seed) {
  unsigned check = seed;
  for (const char c : bytes) {
    check ^= static_cast<std::uint8_t>(c);
    for (int bit = 0; bit < 8; ++bit) check = (check & 1) != 0 ? check >> 1 ^ 0xA001u : check >> 1;
  }
  return static_cast<std::uint16_t>(check);
}

std::uint32_t SlowCrc32(std::string_view bytes) {
  std::uint32_t check = 0xFFFFFFFF;
  for (const char c : bytes) {
    check ^= static_cast<std::uint8_t>(c);
    for (int bit = 0; bit < 8; ++bit) {
      check = (check & 1) != 0 ? check >> 1 ^ 0xEDB88320u : check >> 1;
    }
  }
  return ~check;
}

std::uint32_t SlowPageSum(std::uint32_t seed, std::string_view bytes) {
  std::uint64_t low = seed & 0xFFFF;
  std::uint64_t high = seed >> 16;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    low += static_cast<std::uint8_t>(bytes[i]);
    high += low;
    if ((i + 1) % 0x15B0 != 0 && i + 1 != bytes.size()) continue;
    low %= 0xFFF1;
    high %= 0xFFF1;
  }
  return static_cast<std::uint32_t>(high << 16 | low);
}

Bits& Bits::Plain(std::string_view zerosAndOnes) {
  for (const char c : zerosAndOnes) {
    if (c != ' ') bits_.push_back(c);
  }
  return *this;
}

Bits& Bits::Number(std::uint64_t value, unsigned bits) {
  for (unsigned i = bits; i > 0; --i) bits_.push_back((value >> (i - 1) & 1) != 0 ? '1' : '0');
  return *this;
}

Bits& Bits::Raw(std::string_view bytes) {
  for (const char c : bytes) RC(static_cast<std::uint8_t>(c));
  return *this;
}

Bits& Bits::RD(double value) { return Raw(Low64(std::bit_cast<std::uint64_t>(value))); }

Bits& Bits::BS(unsigned value) {
  if (value == 0) return Plain("10");
  if (value == 256) return Plain("11");
  return value < 256 ? Plain("01").RC(value) : Plain("00").RS(value);
}

Bits& Bits::BL(std::uint32_t value) {
  if (value == 0) return Plain("10");
  return value < 256 ? Plain("01").RC(value) : Plain("00").RL(value);
}

Bits& Bits::BD(double value) {
  if (value == 0) return Plain("10");
  return value == 1 ? Plain("01") : Plain("00").RD(value);
}

Bits& Bits::H(unsigned code, std::uint64_t value) {
  unsigned count = 0;
  while (count < 8 && value >> 8 * count != 0) ++count;
  return Number(code, 4).Number(count, 4).Number(value, 8 * count);
}

Bits& Bits::Append(const Bits& more) {
  bits_ += more.bits_;
  return *this;
}

std::string Bits::Bytes() const {
  std::string bytes;
  for (std::size_t at = 0; at < bits_.size(); at += 8) {
    unsigned byte = 0;
    for (std::size_t i = at; i < at + 8; ++i) {
      byte = byte << 1 | (i < bits_.size() && bits_[i] == '1' ? 1u : 0u);
    }
    bytes.push_back(static_cast<char>(byte));
  }
  return bytes;
}

}  // namespace handmade

#include "support/dwg/Bytes.h"

namespace dwg {
namespace {

unsigned DigitValue(char digit) {
  return static_cast<unsigned>(digit <= '9' ? digit - '0' : (digit | 0x20) - 'a' + 10);
}

}  // namespace

std::string NumberBytes(std::uint64_t number, std::size_t size) {
  std::string bytes;
  AppendNumber(bytes, number, size);
  return bytes;
}

void AppendNumber(std::string& bytes, std::uint64_t number, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    bytes += static_cast<char>(number & 0xFF);
    number >>= 8;
  }
}

void AppendByte(std::string& bytes, std::size_t number) { AppendNumber(bytes, number, 1); }

void PutNumber(std::string& bytes, std::size_t at, std::uint64_t number, std::size_t size) {
  bytes.replace(at, size, NumberBytes(number, size));
}

std::string FromHex(std::string_view digits) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes += static_cast<char>(DigitValue(digits[i]) << 4 | DigitValue(digits[i + 1]));
  }
  return bytes;
}

std::string Inverted(std::string bytes) {
  for (char& byte : bytes) byte = static_cast<char>(~byte);
  return bytes;
}

std::size_t RoundedUp(std::size_t size, std::size_t unit) {
  return (size + unit - 1) / unit * unit;
}

}  // namespace dwg

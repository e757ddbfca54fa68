#include <algorithm>
#include <charconv>

#include "support/drawing/Tags.h"
#include "support/dxf/TagSink.h"

namespace dxf {
namespace {

using drawing::KindOf;
using drawing::ValueKind;

constexpr std::size_t kCodeWidth = 3;
constexpr std::size_t kLongestReal = 32;

std::size_t IntegerWidth(int code) {
  switch (KindOf(code)) {
    case ValueKind::LongLong:
      return 18;
    case ValueKind::Long:
      return 9;
    default:
      return 6;
  }
}

std::string Padded(const std::string& digits, std::size_t width) {
  return std::string(width - std::min(width, digits.size()), ' ') + digits;
}

}  // namespace

std::string FormatReal(double number) {
  char digits[kLongestReal];
  const auto end = std::to_chars(digits, digits + kLongestReal, number).ptr;
  std::string text(digits, end);
  if (text.find_first_of(".en") == std::string::npos) text += ".0";
  return text;
}

AsciiSink::AsciiSink(std::string& file, std::string lineEnd)
    : file_(file), lineEnd_(std::move(lineEnd)) {}

void AsciiSink::Text(int code, std::string_view bytes) {
  file_.append(Padded(std::to_string(code), kCodeWidth)).append(lineEnd_);
  file_.append(bytes).append(lineEnd_);
}

void AsciiSink::Real(int code, double number) { Text(code, FormatReal(number)); }

void AsciiSink::Integer(int code, std::int64_t number) {
  Text(code, Padded(std::to_string(number), IntegerWidth(code)));
}

void AsciiSink::Bytes(int code, std::string_view bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string digits;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    digits += kDigits[value / 16];
    digits += kDigits[value % 16];
  }
  Text(code, digits);
}

}  // namespace dxf

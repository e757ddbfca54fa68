#include <bit>
#include <stdexcept>

#include "support/drawing/Tags.h"
#include "support/dxf/TagSink.h"

namespace dxf {
namespace {

using drawing::KindOf;
using drawing::ValueKind;

// In files with codes of one byte this stands before a code of two.
constexpr std::uint64_t kWideCodeMark = 0xFF;

std::size_t IntegerSize(int code) {
  switch (KindOf(code)) {
    case ValueKind::LongLong:
      return 8;
    case ValueKind::Long:
      return 4;
    case ValueKind::Flag:
      return 1;
    default:
      return 2;
  }
}

}  // namespace

BinarySink::BinarySink(std::string& file, CodeSize codeSize) : file_(file), codeSize_(codeSize) {}

void BinarySink::Text(int code, std::string_view bytes) {
  if (bytes.find('\0') != std::string_view::npos) {
    throw std::invalid_argument("a text of a binary file can't hold a zero byte");
  }
  Code(code);
  file_.append(bytes).push_back('\0');
}

void BinarySink::Real(int code, double number) {
  Code(code);
  LittleEndian(std::bit_cast<std::uint64_t>(number), sizeof number);
}

void BinarySink::Integer(int code, std::int64_t number) {
  Code(code);
  LittleEndian(static_cast<std::uint64_t>(number), IntegerSize(code));
}

void BinarySink::Bytes(int code, std::string_view bytes) {
  Code(code);
  LittleEndian(bytes.size(), 1);
  file_.append(bytes);
}

void BinarySink::Code(int code) {
  const auto number = static_cast<std::uint64_t>(code);
  if (codeSize_ == CodeSize::TwoBytes) {
    LittleEndian(number, 2);
  } else if (number < kWideCodeMark) {
    LittleEndian(number, 1);
  } else {
    LittleEndian(kWideCodeMark, 1);
    LittleEndian(number, 2);
  }
}

void BinarySink::LittleEndian(std::uint64_t number, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) {
    file_.push_back(static_cast<char>((number >> (8 * i)) & 0xFF));
  }
}

}  // namespace dxf

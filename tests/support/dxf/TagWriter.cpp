#include "support/dxf/TagWriter.h"

#include <limits>
#include <stdexcept>
#include <string>

namespace dxf {
namespace {

using drawing::HasObjects;
using drawing::KindOf;
using drawing::RawText;
using drawing::ValueKind;

constexpr int kSubclassMarker = 100;

[[noreturn]] void Refuse(int code) {
  throw std::invalid_argument("the value doesn't suit group code " + std::to_string(code));
}

template <typename Number>
bool Fits(std::int64_t number) {
  return number >= std::numeric_limits<Number>::min() &&
         number <= std::numeric_limits<Number>::max();
}

bool FitsKind(std::int64_t number, ValueKind kind) {
  switch (kind) {
    case ValueKind::Short:
      return Fits<std::int16_t>(number);
    case ValueKind::Long:
      return Fits<std::int32_t>(number);
    case ValueKind::Flag:
      return number == 0 || number == 1;
    default:
      return true;
  }
}

}  // namespace

TagWriter::TagWriter(TagSink& sink, const TextEncoder& encoder, Version version)
    : sink_(sink), encoder_(encoder), version_(version) {}

void TagWriter::Put(const Tag& tag) {
  if (tag.code == kSubclassMarker && !HasObjects(version_)) return;
  switch (KindOf(tag.code)) {
    case ValueKind::Text:
      return PutText(tag.code, tag);
    case ValueKind::Real:
      return PutReal(tag.code, tag);
    case ValueKind::Bytes:
      return PutBytes(tag.code, tag);
    default:
      return PutInteger(tag.code, tag);
  }
}

void TagWriter::Put(const std::vector<Tag>& tags) {
  for (const Tag& tag : tags) Put(tag);
}

void TagWriter::PutPoint(int code, double x, double y, double z) {
  sink_.Real(code, x);
  sink_.Real(code + 10, y);
  sink_.Real(code + 20, z);
}

void TagWriter::PutText(int code, const Tag& tag) {
  if (const auto* text = std::get_if<std::string>(&tag.value)) {
    sink_.Text(code, encoder_.Encode(*text));
  } else if (const auto* raw = std::get_if<RawText>(&tag.value)) {
    sink_.Text(code, raw->bytes);
  } else {
    Refuse(code);
  }
}

void TagWriter::PutReal(int code, const Tag& tag) {
  if (const auto* real = std::get_if<double>(&tag.value)) {
    sink_.Real(code, *real);
  } else if (const auto* integer = std::get_if<std::int64_t>(&tag.value)) {
    sink_.Real(code, static_cast<double>(*integer));
  } else {
    Refuse(code);
  }
}

void TagWriter::PutInteger(int code, const Tag& tag) {
  const auto* number = std::get_if<std::int64_t>(&tag.value);
  if (number == nullptr || !FitsKind(*number, KindOf(code))) Refuse(code);
  sink_.Integer(code, *number);
}

void TagWriter::PutBytes(int code, const Tag& tag) {
  const auto* bytes = std::get_if<std::string>(&tag.value);
  if (bytes == nullptr) Refuse(code);
  for (std::size_t at = 0; at < bytes->size(); at += TagSink::kLongestBytes) {
    sink_.Bytes(code, std::string_view(*bytes).substr(at, TagSink::kLongestBytes));
  }
}

}  // namespace dxf

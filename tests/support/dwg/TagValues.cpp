#include "support/dwg/TagValues.h"

#include <stdexcept>

namespace dwg {
namespace {

[[noreturn]] void Refuse(int code) {
  throw std::invalid_argument("the value doesn't suit group code " + std::to_string(code));
}

}  // namespace

double RealOf(const drawing::Tag& tag) {
  if (const auto* real = std::get_if<double>(&tag.value)) return *real;
  return static_cast<double>(IntegerOf(tag));
}

std::int64_t IntegerOf(const drawing::Tag& tag) {
  if (const auto* integer = std::get_if<std::int64_t>(&tag.value)) return *integer;
  Refuse(tag.code);
}

std::string TextOf(const drawing::Tag& tag) {
  if (const auto* text = std::get_if<std::string>(&tag.value)) return *text;
  Refuse(tag.code);
}

const drawing::Tag* TagValues::Find(int code) const {
  for (const drawing::Tag& tag : tags_) {
    if (tag.code == code) return &tag;
  }
  return nullptr;
}

std::string TagValues::Text(int code) const {
  const drawing::Tag* tag = Find(code);
  return tag == nullptr ? std::string() : TextOf(*tag);
}

std::string TagValues::Text(int pieces, int last) const {
  std::string text;
  for (const drawing::Tag& tag : tags_) {
    if (tag.code == pieces || tag.code == last) text += TextOf(tag);
  }
  return text;
}

double TagValues::Real(int code, double otherwise) const {
  const drawing::Tag* tag = Find(code);
  return tag == nullptr ? otherwise : RealOf(*tag);
}

int TagValues::Integer(int code, int otherwise) const {
  const drawing::Tag* tag = Find(code);
  return tag == nullptr ? otherwise : static_cast<int>(IntegerOf(*tag));
}

}  // namespace dwg

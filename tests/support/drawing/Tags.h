#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace drawing {

// What the value of a group code is, which decides how both forms of the file write it.
enum class ValueKind { Text, Real, Short, Long, LongLong, Flag, Bytes };

// The kind of `code`'s values.  Throws std::invalid_argument for a code that no file has.
ValueKind KindOf(int code);

// A text that goes to the file byte for byte, past the encoding: for files that are damaged or
// encoded against the rule.
struct RawText {
  std::string bytes;
};

// One group code and its value.  Texts are UTF-8; the value of a code for bytes is a std::string
// of those bytes.  A number of the wrong sort for its code is refused when it is written.
struct Tag {
  Tag(int groupCode, const char* text) : code(groupCode), value(std::string(text)) {}
  Tag(int groupCode, std::string text) : code(groupCode), value(std::move(text)) {}
  Tag(int groupCode, RawText text) : code(groupCode), value(std::move(text)) {}
  Tag(int groupCode, double number) : code(groupCode), value(number) {}
  template <std::integral Number>
  Tag(int groupCode, Number number) : code(groupCode), value(static_cast<std::int64_t>(number)) {}

  int code;
  std::variant<std::string, RawText, double, std::int64_t> value;
};

}  // namespace drawing

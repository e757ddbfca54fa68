#include "backends/database/dxf/HeaderVariables.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

constexpr char kNamePrefix = '$';

bool IsRead(std::string_view name) {
  return std::find(std::begin(kReadVariables), std::end(kReadVariables), name) !=
         std::end(kReadVariables);
}

std::size_t NextTextVariable(std::string_view bytes, std::size_t from, std::size_t end) {
  while (from < end) {
    const std::size_t line = from;
    int code = 0;
    const bool isCode = ParseCode(TakeLine(bytes, from), code);
    const bool named = from < end && bytes[from] == kNamePrefix;
    if (isCode && code == kVariableCode && named) return line;
  }
  return end;
}

// The place of the next variable behind the damage at `from`; `end` if there is none.
std::size_t NextVariable(const TagStream& stream, std::size_t from, std::size_t end) {
  if (stream.form() == Form::kText) {
    TakeLine(stream.bytes(), from);
    return NextTextVariable(stream.bytes(), from, end);
  }
  std::string begin = {static_cast<char>(kVariableCode)};
  if (stream.form() == Form::kBinaryTwoByte) begin.push_back('\0');
  begin.push_back(kNamePrefix);
  return std::min(stream.bytes().find(begin, from + 1), end);
}

}  // namespace

HeaderVariables::HeaderVariables(const TagStream& stream, std::size_t begin, std::size_t end) {
  Tag tag;
  bool wantsValue = false;
  for (std::size_t at = begin; at < end;) {
    const std::size_t expectedAt = at;
    const TagStream::Outcome outcome = stream.Read(at, tag);
    if (outcome == TagStream::Outcome::kEnd) break;
    const bool damaged = outcome == TagStream::Outcome::kDamaged;
    if (damaged || tag.at != expectedAt) damages_.push_back(expectedAt);
    if (damaged) {
      at = NextVariable(stream, expectedAt, end);
      wantsValue = false;
    } else if (tag.code == kVariableCode) {
      const std::string_view name = Trimmed(tag.value);
      wantsValue = IsRead(name);
      if (wantsValue) variables_.push_back({name, {}});
    } else if (wantsValue && tag.code != kCommentCode) {
      variables_.back().value = tag;
      wantsValue = false;
    }
  }
}

const HeaderVariables::Variable* HeaderVariables::Find(std::string_view name) const {
  for (const Variable& variable : variables_) {
    if (variable.name == name) return &variable;
  }
  return nullptr;
}

}  // namespace zdx::dxf

#include "backends/database/dxf/HeaderVariables.h"

#include "backends/database/dxf/Lines.h"

namespace zdx::dxf {
namespace {

constexpr char kNamePrefix = '$';

// The begin of the next variable in a text at or after `from`, which is the begin of a line; `end`
// if there is none.
std::size_t NextVariable(const TagStream& stream, std::size_t from, std::size_t end) {
  if (stream.form() != Form::kText) return end;
  while (from < end) {
    const std::size_t line = from;
    int code = 0;
    const bool isCode = ParseCode(TakeLine(stream.bytes(), from), code);
    const bool named = from < end && stream.bytes()[from] == kNamePrefix;
    if (isCode && code == kVariableCode && named) return line;
  }
  return end;
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
      std::size_t next = expectedAt;
      if (stream.form() == Form::kText) TakeLine(stream.bytes(), next);
      at = NextVariable(stream, next, end);
      wantsValue = false;
    } else if (tag.code == kVariableCode) {
      variables_.push_back({Trimmed(tag.value), {}});
      wantsValue = true;
    } else if (wantsValue && tag.code != kCommentCode) {
      variables_.back().value = tag;
      wantsValue = false;
    }
  }
}

std::optional<Tag> HeaderVariables::Find(std::string_view name) const {
  for (const Variable& variable : variables_) {
    if (variable.name == name) return variable.value;
  }
  return std::nullopt;
}

}  // namespace zdx::dxf

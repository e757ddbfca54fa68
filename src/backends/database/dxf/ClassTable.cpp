#include "backends/database/dxf/ClassTable.h"

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

constexpr int kTypeNameCode = 1;
constexpr int kClassNameCode = 2;
constexpr std::int64_t kFirstNumber = 500;

}  // namespace

ClassTable::ClassTable(const TagStream& stream, std::size_t begin, std::size_t end) {
  ObjectStart start = stream.NextObject(begin);
  for (; start.Found() && start.at < end; start = stream.NextObject(start.body)) {
    if (start.type != kClass) continue;
    Row& row = rows_.emplace_back();
    ObjectTags tags(stream, start.body);
    Tag tag;
    while (tags.Next(tag)) {
      if (tag.code == kTypeNameCode && row.type.empty()) row.type = Trimmed(tag.value);
      if (tag.code == kClassNameCode && row.className.empty()) row.className = Trimmed(tag.value);
    }
    if (tags.damagedAt() != kNowhere) damages_.push_back(tags.damagedAt());
  }
}

std::optional<std::string_view> ClassTable::ClassOfType(std::string_view type) const {
  for (const Row& row : rows_) {
    if (row.type == type) return row.className;
  }
  return std::nullopt;
}

std::optional<std::string_view> ClassTable::ClassOfNumber(std::int64_t number) const {
  if (number < kFirstNumber) return std::nullopt;
  const auto index = static_cast<std::uint64_t>(number - kFirstNumber);
  if (index >= rows_.size()) return std::nullopt;
  return rows_[index].className;
}

}  // namespace zdx::dxf

#include "backends/database/dwg/records/FreeRecord.h"

#include <algorithm>
#include <iterator>

#include "base/LittleEndian.h"

namespace zdx::dwg {
namespace {

enum class Kind { kText, kPoint, kReal, kShort, kLong, kLongLong, kByte, kBytes, kHandle };

struct CodeRange {
  int first;
  int last;
  Kind kind;
};

// The first row that has a code counts.
constexpr CodeRange kCodes[] = {
    {5, 5, Kind::kHandle},       {0, 9, Kind::kText},         {10, 17, Kind::kPoint},
    {18, 59, Kind::kReal},       {60, 79, Kind::kShort},      {90, 99, Kind::kLong},
    {100, 109, Kind::kText},     {110, 119, Kind::kPoint},    {120, 149, Kind::kReal},
    {160, 169, Kind::kLongLong}, {170, 179, Kind::kShort},    {210, 239, Kind::kPoint},
    {270, 279, Kind::kShort},    {280, 299, Kind::kByte},     {300, 309, Kind::kText},
    {310, 319, Kind::kBytes},    {320, 369, Kind::kHandle},   {370, 389, Kind::kShort},
    {390, 399, Kind::kHandle},   {400, 409, Kind::kShort},    {410, 419, Kind::kText},
    {420, 429, Kind::kLong},     {430, 439, Kind::kText},     {440, 459, Kind::kLong},
    {460, 469, Kind::kReal},     {470, 479, Kind::kText},     {480, 481, Kind::kHandle},
    {1004, 1004, Kind::kBytes},  {1005, 1005, Kind::kHandle}, {999, 1003, Kind::kText},
    {1010, 1013, Kind::kPoint},  {1014, 1059, Kind::kReal},   {1060, 1070, Kind::kShort},
    {1071, 1071, Kind::kLong},
};

// How many bytes a value takes that has no length of its own.
std::size_t SizeOf(Kind kind) {
  switch (kind) {
    case Kind::kPoint:
      return std::size_t{3} * 8;
    case Kind::kReal:
    case Kind::kLongLong:
    case Kind::kHandle:
      return 8;
    case Kind::kLong:
      return 4;
    case Kind::kShort:
      return 2;
    default:
      return 1;
  }
}

}  // namespace

std::optional<std::string_view> GroupReader::Take(std::size_t count) {
  if (count > bytes_.size()) return std::nullopt;
  const std::string_view taken = bytes_.substr(0, count);
  bytes_.remove_prefix(count);
  return taken;
}

bool GroupReader::ReadText(Group& group) {
  const auto length = Take(2);
  if (!length) return false;
  std::size_t size = LittleEndian<std::uint16_t>(*length);
  if (format_.HasStringStream()) {
    size *= 2;
  } else {
    const auto page = Take(1);
    if (!page) return false;
    group.codePage = LittleEndian<std::uint8_t>(*page);
  }
  const auto text = Take(size);
  group.isText = text.has_value();
  group.text = text.value_or(std::string_view());
  return group.isText;
}

std::optional<Group> GroupReader::Next() {
  if (damaged_ || bytes_.empty()) return std::nullopt;
  // Until the group is whole.
  damaged_ = true;
  const auto number = Take(2);
  if (!number) return std::nullopt;
  Group group;
  group.code = LittleEndian<std::uint16_t>(*number);
  const auto* const row =
      std::find_if(std::begin(kCodes), std::end(kCodes), [&group](const CodeRange& range) {
        return group.code >= range.first && group.code <= range.last;
      });
  if (row == std::end(kCodes)) return std::nullopt;
  if (row->kind == Kind::kText) {
    if (!ReadText(group)) return std::nullopt;
  } else {
    std::size_t size = SizeOf(row->kind);
    if (row->kind == Kind::kBytes) {
      const auto length = Take(1);
      if (!length) return std::nullopt;
      size = LittleEndian<std::uint8_t>(*length);
    }
    const auto value = Take(size);
    if (!value) return std::nullopt;
    if (row->kind == Kind::kBytes) group.bytes = *value;
  }
  damaged_ = false;
  return group;
}

}  // namespace zdx::dwg

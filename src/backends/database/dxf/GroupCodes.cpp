#include "backends/database/dxf/GroupCodes.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace zdx::dxf {
namespace {

struct CodeRange {
  int first;
  int last;
  ValueKind kind;
};

constexpr CodeRange kRanges[] = {
    {0, 9, ValueKind::kText},        {10, 59, ValueKind::kDouble},
    {60, 79, ValueKind::kInt16},     {90, 99, ValueKind::kInt32},
    {100, 102, ValueKind::kText},    {105, 105, ValueKind::kText},
    {110, 149, ValueKind::kDouble},  {160, 169, ValueKind::kInt64},
    {170, 179, ValueKind::kInt16},   {210, 239, ValueKind::kDouble},
    {270, 289, ValueKind::kInt16},   {290, 299, ValueKind::kBool},
    {300, 309, ValueKind::kText},    {310, 319, ValueKind::kBytes},
    {320, 369, ValueKind::kText},    {370, 389, ValueKind::kInt16},
    {390, 399, ValueKind::kText},    {400, 409, ValueKind::kInt16},
    {410, 419, ValueKind::kText},    {420, 429, ValueKind::kInt32},
    {430, 439, ValueKind::kText},    {440, 459, ValueKind::kInt32},
    {460, 469, ValueKind::kDouble},  {470, 481, ValueKind::kText},
    {999, 1003, ValueKind::kText},   {1004, 1004, ValueKind::kBytes},
    {1005, 1005, ValueKind::kText},  {1010, 1059, ValueKind::kDouble},
    {1060, 1070, ValueKind::kInt16}, {1071, 1071, ValueKind::kInt32},
};
constexpr std::size_t kCodes = 1072;

constexpr std::array<ValueKind, kCodes> MakeKinds() {
  std::array<ValueKind, kCodes> kinds = {};
  for (const CodeRange& range : kRanges) {
    for (int code = range.first; code <= range.last; ++code) {
      kinds[static_cast<std::size_t>(code)] = range.kind;
    }
  }
  return kinds;
}

constexpr std::array<ValueKind, kCodes> kKinds = MakeKinds();

}  // namespace

ValueKind KindOf(int code) {
  const auto index = static_cast<std::size_t>(code);
  return code >= 0 && index < kCodes ? kKinds[index] : ValueKind::kUnknown;
}

bool IsHandle(int code) {
  return code == kHandleCode || code == kDimensionStyleHandleCode || code == kExtendedHandleCode ||
         (code >= 320 && code <= 369) || (code >= 390 && code <= 399) ||
         (code >= 480 && code <= 481);
}

}  // namespace zdx::dxf

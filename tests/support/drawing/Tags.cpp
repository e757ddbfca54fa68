#include "support/drawing/Tags.h"

#include <stdexcept>

namespace drawing {
namespace {

struct CodeRange {
  int first;
  int last;
  ValueKind kind;
};

constexpr CodeRange kCodeRanges[] = {
    {0, 9, ValueKind::Text},       {10, 59, ValueKind::Real},       {60, 79, ValueKind::Short},
    {90, 99, ValueKind::Long},     {100, 102, ValueKind::Text},     {105, 105, ValueKind::Text},
    {110, 149, ValueKind::Real},   {160, 169, ValueKind::LongLong}, {170, 179, ValueKind::Short},
    {210, 239, ValueKind::Real},   {270, 289, ValueKind::Short},    {290, 299, ValueKind::Flag},
    {300, 309, ValueKind::Text},   {310, 319, ValueKind::Bytes},    {320, 369, ValueKind::Text},
    {370, 389, ValueKind::Short},  {390, 399, ValueKind::Text},     {400, 409, ValueKind::Short},
    {410, 419, ValueKind::Text},   {420, 429, ValueKind::Long},     {430, 439, ValueKind::Text},
    {440, 459, ValueKind::Long},   {460, 469, ValueKind::Real},     {470, 481, ValueKind::Text},
    {999, 1003, ValueKind::Text},  {1004, 1004, ValueKind::Bytes},  {1005, 1005, ValueKind::Text},
    {1010, 1059, ValueKind::Real}, {1060, 1070, ValueKind::Short},  {1071, 1071, ValueKind::Long},
};

}  // namespace

ValueKind KindOf(int code) {
  for (const CodeRange& range : kCodeRanges) {
    if (code >= range.first && code <= range.last) return range.kind;
  }
  throw std::invalid_argument("no such group code: " + std::to_string(code));
}

}  // namespace drawing

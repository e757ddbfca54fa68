#include "backends/database/model/SummaryRecord.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

namespace zdx::model {
namespace {

struct FieldRow {
  int code;
  std::optional<std::wstring> Summary::*field;
};

constexpr FieldRow kFields[] = {
    {2, &Summary::title},          {3, &Summary::subject},  {4, &Summary::author},
    {6, &Summary::comments},       {7, &Summary::keywords}, {8, &Summary::lastSavedBy},
    {9, &Summary::revisionNumber},
};

// Custom entries stand as "name=value"; an unused place holds "=".
constexpr int kFirstCustomCode = 300;
constexpr int kLastCustomCode = 309;
constexpr wchar_t kCustomSeparator = L'=';

bool IsCustom(int code) { return code >= kFirstCustomCode && code <= kLastCustomCode; }

void AddCustomEntry(Summary& summary, const std::wstring& text) {
  const std::size_t separator = std::min(text.find(kCustomSeparator), text.size());
  const std::size_t value = std::min(separator + 1, text.size());
  if (separator == 0 && value == text.size()) return;
  summary.custom.emplace_back(text.substr(0, separator), text.substr(value));
}

}  // namespace

bool SummaryRecord::Wants(int code) {
  return IsCustom(code) || std::any_of(std::begin(kFields), std::end(kFields),
                                       [code](const FieldRow& row) { return row.code == code; });
}

void SummaryRecord::Take(int code, const std::wstring& text) {
  if (IsCustom(code)) AddCustomEntry(summary_, text);
  for (std::size_t i = 0; i < std::size(kFields); ++i) {
    if (kFields[i].code != code) continue;
    summary_.*kFields[i].field = text;
    told_ |= 1u << i;
  }
}

Summary SummaryRecord::Finish(bool lost) {
  for (std::size_t i = 0; lost && i < std::size(kFields); ++i) {
    if ((told_ & 1u << i) == 0) summary_.*kFields[i].field = std::nullopt;
  }
  return std::move(summary_);
}

}  // namespace zdx::model

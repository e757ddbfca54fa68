#include "backends/database/model/BuiltIns.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "base/CaseFold.h"

namespace zdx::model {
namespace {

constexpr std::wstring_view kLinetypes[] = {L"ByBlock", L"ByLayer"};
// The oldest drawings begin these names with a dollar sign.
constexpr std::wstring_view kBlocks[] = {L"*Model_Space", L"$MODEL_SPACE", L"*Paper_Space",
                                         L"$PAPER_SPACE"};
constexpr std::wstring_view kArrows[] = {
    L"ArchTick",     L"BoxBlank",   L"BoxFilled",   L"Closed",  L"ClosedBlank",
    L"ClosedFilled", L"DatumBlank", L"DatumFilled", L"Dot",     L"DotBlank",
    L"DotSmall",     L"Integral",   L"None",        L"Oblique", L"Open",
    L"Open30",       L"Open90",     L"Origin",      L"Origin2", L"Small"};

// The place of `name` among `names`; their number if it isn't one of them.
template <std::size_t kCount>
std::size_t PlaceOf(const std::wstring_view (&names)[kCount], std::wstring_view name) {
  return static_cast<std::size_t>(
      std::find_if(std::begin(names), std::end(names),
                   [name](std::wstring_view n) { return CompareIgnoringCase(n, name) == 0; }) -
      std::begin(names));
}

// The built-in names of a table, in the order in which they are told.
std::span<const std::wstring_view> BuiltInNames(TableKind table) {
  switch (table) {
    case TableKind::kLinetype:
      return kLinetypes;
    case TableKind::kBlock:
      return kBlocks;
    default:
      return {};
  }
}

}  // namespace

void PutBuiltInsFirst(TableKind table, std::vector<ObjectKey>& records,
                      const std::function<std::optional<std::wstring>(ObjectKey record)>& nameOf) {
  const std::span<const std::wstring_view> names = BuiltInNames(table);
  if (names.empty()) return;
  std::vector<std::optional<ObjectKey>> builtIns(names.size());
  for (const ObjectKey record : records) {
    const std::optional<std::wstring> name = nameOf(record);
    if (!name) continue;
    for (std::size_t i = 0; i < names.size(); ++i) {
      const bool matches = CompareIgnoringCase(*name, names[i]) == 0;
      if (matches && !builtIns[i]) builtIns[i] = record;
    }
  }
  auto front = records.begin();
  for (const std::optional<ObjectKey>& record : builtIns) {
    if (!record) continue;
    const auto found = std::find(front, records.end(), *record);
    std::rotate(front, found, std::next(found));
    ++front;
  }
}

std::wstring ArrowBlockName(std::wstring_view text,
                            const std::function<std::wstring(const std::wstring& name)>& spelling) {
  if (text.empty()) return {};
  const std::wstring name(text);
  const std::size_t place = PlaceOf(kArrows, text);
  if (place == std::size(kArrows)) {
    std::wstring spelled = spelling(name);
    return spelled.empty() ? name : spelled;
  }
  for (const std::wstring& candidate : {L"_" + name, name}) {
    if (std::wstring spelled = spelling(candidate); !spelled.empty()) return spelled;
  }
  return L"_" + std::wstring(kArrows[place]);
}

}  // namespace zdx::model

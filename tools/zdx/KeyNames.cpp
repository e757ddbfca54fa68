#include "KeyNames.h"

#include <algorithm>
#include <cstddef>

#include "PropertyNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using Manager = ZDXEngine::FilePropertyMgr;

constexpr ListKey kListKeys[] = {
    {L"layers", L"Layer Name", Manager::SymbolTables},
    {L"linetypes", L"LineType Name", Manager::SymbolTables},
    {L"views", L"View Name", Manager::SymbolTables},
    {L"layouts", L"Layout Name", Manager::NamedObjects},
    {L"groups", L"Group Name", Manager::NamedObjects},
    {L"mlinestyles", L"MultiLine Style Name", Manager::NamedObjects},
    {L"namedobjects", L"Named Object Name", Manager::NamedObjects},
    {L"plotsettings", L"Plot Settings Name", Manager::NamedObjects},
};

constexpr GroupKey kGroupKeys[] = {
    {L"settings", PropertyGroup::kSettings, Manager::DatabaseSettings, L""},
    {L"geo", PropertyGroup::kLocation, Manager::GeoLocation, L""},
    {L"creator", PropertyGroup::kCreator, Manager::CreatorInfo, L"DWG Creator "},
};

constexpr std::wstring_view kIndent = L"  ";

void AppendName(std::wstring& names, std::wstring_view name) {
  if (!names.empty()) names += L", ";
  names += name;
}

std::wstring SummaryNames() {
  std::wstring names;
  for (const SummaryField& field : SummaryFields()) AppendName(names, field.name);
  return names;
}

std::wstring ListNames() {
  std::wstring names;
  for (const ListKey& list : kListKeys) AppendName(names, list.key);
  return names;
}

// `text` in lines, at most 79 columns wide where its words are short enough, that are indented, all
// but the first twice as far.
std::wstring Wrapped(std::wstring_view text) {
  constexpr std::size_t kWidth = 79;
  std::wstring lines(kIndent);
  std::size_t lineStart = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L' '), text.size());
    const std::size_t column = lines.size() - lineStart;
    if (column + end >= kWidth) {
      lines += L"\n";
      lineStart = lines.size();
      lines.append(kIndent).append(kIndent);
    } else if (!lines.ends_with(kIndent)) {
      lines += L' ';
    }
    lines += text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines + L"\n";
}

}  // namespace

std::span<const ListKey> ListKeys() { return kListKeys; }

std::span<const GroupKey> GroupKeys() { return kGroupKeys; }

std::wstring GroupNames(const GroupKey& group) {
  std::wstring names;
  for (const GroupedName& known : GroupedNames()) {
    if (known.group != group.group) continue;
    AppendName(names, std::wstring_view(known.name).substr(group.leftOut.size()));
  }
  return names;
}

std::wstring NoSuchKey(std::wstring_view word) {
  std::wstring problem = L"'" + std::wstring(word) + L"' isn't one of " + SummaryNames();
  problem += L", type, custom:NAME";
  for (const GroupKey& group : kGroupKeys) {
    AppendName(problem, std::wstring(group.prefix) + L":NAME");
  }
  AppendName(problem, L"block:NAME:TAG");
  AppendName(problem, ListNames());
  return problem;
}

std::string KeyForms() {
  std::wstring forms = Wrapped(SummaryNames() + L", type");
  forms += Wrapped(ListNames() + L": one name a line");
  forms += Wrapped(L"custom:NAME: an entry that people added");
  for (const GroupKey& group : kGroupKeys) {
    forms += Wrapped(std::wstring(group.prefix) + L":NAME: with " + GroupNames(group));
  }
  forms += Wrapped(L"block:NAME:TAG: an attribute of a block");
  return ZDXEngine::Utf8FromWide(forms);
}

}  // namespace zdx

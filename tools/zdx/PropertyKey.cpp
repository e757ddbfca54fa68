#include "PropertyKey.h"

#include <algorithm>
#include <iterator>

#include "AsciiCase.h"
#include "FormatId.h"
#include "PropertyGroups.h"
#include "PropertyNames.h"
#include "ZDXEngine/FormatIds.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using Manager = ZDXEngine::FilePropertyMgr;
using ZDXEngine::_PropData;

struct ListKey {
  std::wstring_view key;
  const wchar_t* name;
  Selection selection;
};

const std::wstring kIndent = L"  ";

constexpr ListKey kLists[] = {
    {L"layers", L"Layer Name", Manager::SymbolTables},
    {L"linetypes", L"LineType Name", Manager::SymbolTables},
    {L"views", L"View Name", Manager::SymbolTables},
    {L"layouts", L"Layout Name", Manager::NamedObjects},
    {L"groups", L"Group Name", Manager::NamedObjects},
    {L"mlinestyles", L"MultiLine Style Name", Manager::NamedObjects},
    {L"namedobjects", L"Named Object Name", Manager::NamedObjects},
    {L"plotsettings", L"Plot Settings Name", Manager::NamedObjects},
};

// Keys "prefix:NAME" for the names of a group.
struct GroupKey {
  std::wstring_view prefix;
  PropertyGroup group;
  Selection selection;
  // Of the properties' names, what keys leave out.
  std::wstring_view leftOut;
};

constexpr GroupKey kGroups[] = {
    {L"settings", PropertyGroup::kSettings, Manager::DatabaseSettings, L""},
    {L"geo", PropertyGroup::kLocation, Manager::GeoLocation, L""},
    {L"creator", PropertyGroup::kCreator, Manager::CreatorInfo, L"DWG Creator "},
};

PropertyKey StorageKey(std::wstring_view name, Selection selection, bool isList = false) {
  return {
      {selection, {}}, FormatIdText(ZDXEngine::FMTID_Storage), std::wstring(name), false, isList};
}

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
  for (const ListKey& list : kLists) AppendName(names, list.key);
  return names;
}

// What may stand behind the prefix.
std::wstring NamesOf(const GroupKey& group) {
  std::wstring names;
  for (const GroupedName& known : GroupedNames()) {
    if (known.group != group.group) continue;
    AppendName(names, std::wstring_view(known.name).substr(group.leftOut.size()));
  }
  return names;
}

std::optional<PropertyKey> PlainKey(std::wstring_view word) {
  for (const SummaryField& field : SummaryFields()) {
    if (!EqualsIgnoringAsciiCase(word, field.name)) continue;
    return PropertyKey{{Manager::SummaryInfo, {}},
                       FormatIdText(ZDXEngine::FMTID_SummaryInformation),
                       field.number};
  }
  for (const ListKey& list : kLists) {
    if (EqualsIgnoringAsciiCase(word, list.key)) return StorageKey(list.name, list.selection, true);
  }
  if (EqualsIgnoringAsciiCase(word, L"type")) {
    return StorageKey(kDrawingType, Manager::DrawingFlavour);
  }
  return std::nullopt;
}

std::optional<PropertyKey> KeyOfGroup(const GroupKey& group, std::wstring_view name) {
  for (const GroupedName& known : GroupedNames()) {
    const auto shortName = std::wstring_view(known.name);
    if (known.group == group.group &&
        EqualsIgnoringAsciiCase(name, shortName.substr(group.leftOut.size()))) {
      return StorageKey(known.name, group.selection);
    }
  }
  return std::nullopt;
}

PropertyKey CustomKey(std::wstring_view name) {
  return {{Manager::CustomSummary, {}},
          FormatIdText(ZDXEngine::FMTID_UserDefinedProperties),
          std::wstring(name),
          true};
}

// A block's name has no colon in a drawing, but a tag may have one.
std::optional<PropertyKey> BlockKey(std::wstring_view blockAndTag) {
  const std::size_t colon = blockAndTag.find(L':');
  if (colon == 0 || colon == std::wstring_view::npos || colon + 1 == blockAndTag.size()) {
    return std::nullopt;
  }
  BlockFilter block;
  block.blockName = blockAndTag.substr(0, colon);
  block.formatId = OwnFormatId(1);
  block.usePrompt = false;
  return PropertyKey{{Manager::BlockAttributes, {block}},
                     FormatIdText(block.formatId),
                     std::wstring(blockAndTag.substr(colon + 1)),
                     true};
}

// The key of a word "prefix:rest"; nothing, and maybe a problem, if there is none such.
std::optional<PropertyKey> KeyBehind(std::wstring_view prefix, std::wstring_view rest,
                                     std::wstring& problem) {
  if (EqualsIgnoringAsciiCase(prefix, L"custom") && !rest.empty()) return CustomKey(rest);
  if (EqualsIgnoringAsciiCase(prefix, L"block")) return BlockKey(rest);
  for (const GroupKey& group : kGroups) {
    if (!EqualsIgnoringAsciiCase(prefix, group.prefix)) continue;
    const auto key = KeyOfGroup(group, rest);
    if (!key) problem = L"'" + std::wstring(rest) + L"' isn't one of " + NamesOf(group);
    return key;
  }
  return std::nullopt;
}

// `text` in lines, at most 79 columns wide where its words are short enough, that begin with
// `indent`; all but the first with twice as much.
std::wstring Wrapped(std::wstring_view text, const std::wstring& indent) {
  constexpr std::size_t kWidth = 79;
  std::wstring lines = indent;
  std::size_t lineStart = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(L' '), text.size());
    const std::size_t column = lines.size() - lineStart;
    if (column + end >= kWidth) {
      lines += L"\n";
      lineStart = lines.size();
      lines += indent + indent;
    } else if (!lines.ends_with(indent)) {
      lines += L' ';
    }
    lines += text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines + L"\n";
}

std::wstring NoKey(std::wstring_view word) {
  std::wstring problem = L"'" + std::wstring(word) + L"' isn't one of " + SummaryNames();
  problem += L", type, custom:NAME";
  for (const GroupKey& group : kGroups) AppendName(problem, std::wstring(group.prefix) + L":NAME");
  AppendName(problem, L"block:NAME:TAG");
  AppendName(problem, ListNames());
  return problem;
}

}  // namespace

std::optional<PropertyKey> ParseKey(std::string_view word, std::string& problem) {
  const std::wstring wide = ZDXEngine::WideFromUtf8(word);
  const std::wstring_view key = wide;
  const std::size_t colon = key.find(L':');
  std::wstring why;
  const auto parsed = colon == std::wstring_view::npos
                          ? PlainKey(key)
                          : KeyBehind(key.substr(0, colon), key.substr(colon + 1), why);
  if (!parsed) problem = ZDXEngine::BytesFromWide(why.empty() ? NoKey(key) : why);
  return parsed;
}

std::string KeyForms() {
  std::wstring forms = Wrapped(SummaryNames() + L", type", kIndent);
  forms += Wrapped(ListNames() + L": one name a line", kIndent);
  forms += Wrapped(L"custom:NAME: an entry that people added", kIndent);
  for (const GroupKey& group : kGroups) {
    forms += Wrapped(std::wstring(group.prefix) + L":NAME: with " + NamesOf(group), kIndent);
  }
  forms += Wrapped(L"block:NAME:TAG: an attribute of a block", kIndent);
  return ZDXEngine::Utf8FromWide(forms);
}

std::vector<const _PropData*> Find(const PropertyKey& key, const DrawingReport& report) {
  std::vector<const _PropData*> found;
  const _PropData* similar = nullptr;
  for (const _PropData& property : report.properties) {
    if (property.formatId != key.formatId) continue;
    if (property.name == key.name) {
      found.push_back(&property);
      if (!key.isList) return found;
    } else if (key.inAnyCase && similar == nullptr &&
               EqualsIgnoringAsciiCase(std::wstring_view(property.name), key.name)) {
      similar = &property;
    }
  }
  if (found.empty() && similar != nullptr) found.push_back(similar);
  return found;
}

}  // namespace zdx

#include "PropertyKey.h"

#include "AsciiCase.h"
#include "FormatId.h"
#include "KeyNames.h"
#include "PropertyNames.h"
#include "ZDXEngine/FormatIds.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using Manager = ZDXEngine::FilePropertyMgr;
using ZDXEngine::_PropData;

PropertyKey StorageKey(std::wstring_view name, Selection selection, bool isList = false) {
  return {
      {selection, {}}, FormatIdText(ZDXEngine::FMTID_Storage), std::wstring(name), false, isList};
}

std::optional<PropertyKey> PlainKey(std::wstring_view word) {
  for (const SummaryField& field : SummaryFields()) {
    if (!EqualsIgnoringAsciiCase(word, field.name)) continue;
    return PropertyKey{{Manager::SummaryInfo, {}},
                       FormatIdText(ZDXEngine::FMTID_SummaryInformation),
                       field.number};
  }
  for (const ListKey& list : ListKeys()) {
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
  for (const GroupKey& group : GroupKeys()) {
    if (!EqualsIgnoringAsciiCase(prefix, group.prefix)) continue;
    auto key = KeyOfGroup(group, rest);
    if (!key) problem = L"'" + std::wstring(rest) + L"' isn't one of " + GroupNames(group);
    return key;
  }
  return std::nullopt;
}

}  // namespace

std::optional<PropertyKey> ParseKey(std::string_view word, std::string& problem) {
  const std::wstring wide = ZDXEngine::WideFromUtf8(word);
  const std::wstring_view key = wide;
  const std::size_t colon = key.find(L':');
  std::wstring why;
  auto parsed = colon == std::wstring_view::npos
                    ? PlainKey(key)
                    : KeyBehind(key.substr(0, colon), key.substr(colon + 1), why);
  if (!parsed) problem = ZDXEngine::BytesFromWide(why.empty() ? NoSuchKey(key) : why);
  return parsed;
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

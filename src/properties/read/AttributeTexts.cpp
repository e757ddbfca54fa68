#include "properties/read/AttributeTexts.h"

#include <optional>

#include "properties/read/LibraryText.h"
#include "properties/record/AddProperty.h"

namespace ZDXEngine {
namespace {

using OptionalText = std::optional<std::wstring>;

void AddRecords(std::vector<_PropData>& properties, const OptionalText& text,
                const std::wstring& name, const GUID& formatId, bool byId) {
  const wchar_t* const value = text ? text->c_str() : nullptr;
  if (byId) AddText(properties, value, name, formatId, kNamedProperty);
  AddText(properties, value, name, FMTID_Storage, kNamedProperty);
}

OptionalText TextOf(const ZnDbObject& object) {
  const ZnRxClass* const type = object.isA();
  if (type == nullptr) return std::nullopt;
  if (type->isDerivedFrom(ZnDbAttribute::desc())) {
    return ReadText(static_cast<const ZnDbAttribute&>(object), &ZnDbText::textString);
  }
  if (type->isDerivedFrom(ZnDbMText::desc())) {
    return ReadText(static_cast<const ZnDbMText&>(object), &ZnDbMText::text);
  }
  return std::nullopt;
}

// The first semicolon ends a code of format at the text's beginning.
void Flatten(std::wstring& text) {
  bool semicolonSeen = false;
  for (wchar_t& character : text) {
    const bool isFirstSemicolon = character == L';' && !semicolonSeen;
    semicolonSeen = semicolonSeen || isFirstSemicolon;
    if (isFirstSemicolon || character == L'\r' || character == L'\n') character = L' ';
  }
}

}  // namespace

void AddTextProperty(std::vector<_PropData>& properties, const ZnDbText* object,
                     const std::wstring& name, const GUID& formatId, bool byId) {
  AddRecords(properties, ReadText(*object, &ZnDbText::textString), name, formatId, byId);
}

void AddMTextProperty(std::vector<_PropData>& properties, const ZnDbObject* object,
                      const std::wstring& name, const GUID& formatId, bool byId) {
  OptionalText text = TextOf(*object);
  if (text) Flatten(*text);
  AddRecords(properties, text, name, formatId, byId);
}

}  // namespace ZDXEngine

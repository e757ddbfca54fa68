#include "PropertyNames.h"

#include <algorithm>
#include <array>

#include "FormatId.h"
#include "ZDXEngine/FormatIds.h"

namespace zdx {

namespace {

constexpr std::array kSummaryFields = {
    SummaryField{L"2", L"Title"},          SummaryField{L"3", L"Subject"},
    SummaryField{L"4", L"Author"},         SummaryField{L"5", L"Keywords"},
    SummaryField{L"6", L"Comments"},       SummaryField{L"8", L"LastSavedBy"},
    SummaryField{L"9", L"RevisionNumber"},
};

}  // namespace

PropertySet SetOf(const ZDXEngine::_PropData& property) {
  // A drawing may have thousands of properties, so the texts are made once.
  static const std::wstring summary = FormatIdText(ZDXEngine::FMTID_SummaryInformation);
  static const std::wstring custom = FormatIdText(ZDXEngine::FMTID_UserDefinedProperties);
  static const std::wstring storage = FormatIdText(ZDXEngine::FMTID_Storage);
  if (property.formatId == storage) return PropertySet::kStorage;
  if (property.formatId == custom) return PropertySet::kCustom;
  if (property.formatId == summary) return PropertySet::kSummary;
  return PropertySet::kUnknown;
}

bool IsKnownByNumber(const ZDXEngine::_PropData& property) {
  return SetOf(property) == PropertySet::kSummary ||
         property.formatId == FormatIdText(ZDXEngine::FMTID_DocSummaryInformation);
}

bool IsDrawingType(const ZDXEngine::_PropData& property) {
  return property.name == kDrawingType && SetOf(property) == PropertySet::kStorage;
}

std::span<const SummaryField> SummaryFields() { return kSummaryFields; }

}  // namespace zdx

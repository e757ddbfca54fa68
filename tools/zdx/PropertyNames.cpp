#include "PropertyNames.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "ZDXEngine/FormatIds.h"

namespace zdx {

namespace {

struct NumberedName {
  const wchar_t* number;
  const wchar_t* name;
};

constexpr std::array kSummaryNames = {
    NumberedName{L"2", L"Title"},          NumberedName{L"3", L"Subject"},
    NumberedName{L"4", L"Author"},         NumberedName{L"5", L"Keywords"},
    NumberedName{L"6", L"Comments"},       NumberedName{L"8", L"LastSavedBy"},
    NumberedName{L"9", L"RevisionNumber"}, NumberedName{L"17", L"Thumbnail"},
};

void AppendHex(std::wstring& text, std::uint32_t value, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text.push_back(L"0123456789ABCDEF"[value >> shift & 0xF]);
  }
}

// Braced upper-case text, the form of _PropData::formatId.
std::wstring GuidText(const GUID& id) {
  constexpr int kBytesBeforeLastDash = 2;
  std::wstring text = L"{";
  AppendHex(text, id.Data1, 8);
  text.push_back(L'-');
  AppendHex(text, id.Data2, 4);
  text.push_back(L'-');
  AppendHex(text, id.Data3, 4);
  text.push_back(L'-');
  for (int i = 0; i < 8; ++i) {
    if (i == kBytesBeforeLastDash) text.push_back(L'-');
    AppendHex(text, id.Data4[i], 2);
  }
  text.push_back(L'}');
  return text;
}

}  // namespace

PropertySet SetOf(const ZDXEngine::_PropData& property) {
  // A drawing may have thousands of properties, so the texts are made once.
  static const std::wstring summary = GuidText(ZDXEngine::FMTID_SummaryInformation);
  static const std::wstring custom = GuidText(ZDXEngine::FMTID_UserDefinedProperties);
  static const std::wstring storage = GuidText(ZDXEngine::FMTID_Storage);
  if (property.formatId == storage) return PropertySet::kStorage;
  if (property.formatId == custom) return PropertySet::kCustom;
  if (property.formatId == summary) return PropertySet::kSummary;
  return PropertySet::kUnknown;
}

bool IsDrawingType(const ZDXEngine::_PropData& property) {
  return property.name == L"DWG Type" && SetOf(property) == PropertySet::kStorage;
}

std::wstring SummaryName(const std::wstring& number) {
  const auto known =
      std::find_if(kSummaryNames.begin(), kSummaryNames.end(),
                   [&](const NumberedName& entry) { return number == entry.number; });
  return known == kSummaryNames.end() ? L"Property " + number : known->name;
}

}  // namespace zdx

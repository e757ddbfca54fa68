// The property sets and names that the tool knows by sight.
#pragma once

#include <span>
#include <string_view>

#include "ZDXEngine/PropData.h"

namespace zdx {

// The property sets that the engine publishes under.
enum class PropertySet { kSummary, kCustom, kStorage, kUnknown };

// The set that `property` belongs to.
PropertySet SetOf(const ZDXEngine::_PropData& property);

// Whether the properties of the set of `property` are named by numbers.
bool IsKnownByNumber(const ZDXEngine::_PropData& property);

inline constexpr std::wstring_view kDrawingType = L"DWG Type";

// Whether `property` tells which product made the drawing.
bool IsDrawingType(const ZDXEngine::_PropData& property);

// A text of the summary.
struct SummaryField {
  // As a property of the summary's set is named.
  const wchar_t* number;
  // As people call it.
  const wchar_t* name;
};

// All of them, in the order in which they are told.
std::span<const SummaryField> SummaryFields();

}  // namespace zdx

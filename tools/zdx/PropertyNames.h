// The property sets and names that the tool knows by sight.
#pragma once

#include <string>

#include "ZDXEngine/PropData.h"

namespace zdx {

// The property sets that the engine publishes under.
enum class PropertySet { kSummary, kCustom, kStorage, kUnknown };

// The set that `property` belongs to.
PropertySet SetOf(const ZDXEngine::_PropData& property);

// Whether `property` tells which product made the drawing.
bool IsDrawingType(const ZDXEngine::_PropData& property);

// The name of the summary property that is known by the decimal text `number`; for an unknown one
// "Property " and the number.
std::wstring SummaryName(const std::wstring& number);

}  // namespace zdx

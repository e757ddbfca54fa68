// The one way in which a property enters a list.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/FormatIds.h"
#include "ZDXEngine/PropData.h"

namespace ZDXEngine {

// The property number of a property that is known by its name.
inline constexpr unsigned long kNamedProperty = 0x13;

// Appends a record to `properties` and takes `value` over: the caller's variant is empty
// afterwards. Under the two summary format ids the record's name is the number as text, whatever
// `propertyName` says; under any other it is `propertyName`, or the number as text if that is
// empty.  Throws _com_error if the value can't be copied; `properties` is as it was then.
void AddProperty(std::vector<_PropData>& properties, VARIANT& value, int typeCode,
                 std::wstring propertyName, const GUID& formatGuid, unsigned long propertyNumber);

// The same for a text: makes the variant by MakeTextVariant and adds it with the type code of
// texts.
void AddText(std::vector<_PropData>& properties, const wchar_t* text, std::wstring propertyName,
             const GUID& formatGuid, unsigned long propertyNumber);

}  // namespace ZDXEngine

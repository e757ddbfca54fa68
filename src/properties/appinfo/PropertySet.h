// Values out of the texts of property sets.
//
// The texts look like XML and are not parsed as such: the literal shapes count, character by
// character, and whatever else stands in a text is passed over.
//
//   <prop_set fmt_id="{F29F85E0-...}"><prop id="258"><string>X</string></prop></prop_set>
#pragma once

#include <string>

#include "ZDXEngine/Automation.h"
#include "platform/os/PropVariant.h"
#include "properties/appinfo/PropertySetMap.h"

namespace ZDXEngine {

// Looks `wanted` up in the summary set of `sets`.  The caller clears `value` before and releases it
// with ReleaseTypedValue; for the rest see ReadPropertySetValue.
bool FindPropertyValue(const PropertySetMap& sets, const PROPSPEC& wanted, PROPVARIANT& value);

// Copies the summary set's text.  False, and `text` is as it was, if there is none.
bool GetSummaryPropertySet(const PropertySetMap& sets, std::wstring& text);

// Looks `wanted` up in one text, whose head must name the summary set too.  False for a number
// beyond 31 bits, an empty name, and where a shape is missing.  Throws as ReadPropertySetFormatId
// and ReadTypedValue do.
bool ReadPropertySetValue(const std::wstring& text, const PROPSPEC& wanted, PROPVARIANT& value);

// Sets `formatId` to the one that the text's head names; false if it names none.  A text without a
// head is read as if one ended behind its 17th character; a shorter one throws std::out_of_range.
bool ReadPropertySetFormatId(const std::wstring& text, GUID& formatId);

}  // namespace ZDXEngine

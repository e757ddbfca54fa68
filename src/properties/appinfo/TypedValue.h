// Value elements of property sets.
#pragma once

#include <string>

#include "platform/os/PropVariant.h"

namespace ZDXEngine {

// Reads an element such as "<int>16</int>" into `value`, which the caller has cleared; what stands
// behind the closing tag doesn't matter.  A number that can't be scanned leaves the value 0 and
// counts as read.  False for any other shape; without a closing tag the type is set already.  The
// text of a string is a block of malloc's, null if memory ran out; ReleaseTypedValue frees it.
//
// A date can't be told: the correction to local time that it needs has no base.  Throws
// ATL::CAtlException for E_FAIL where one is reached, whatever its text.
bool ReadTypedValue(const std::wstring& element, PROPVARIANT& value);

// Frees what ReadTypedValue allocated and clears `value`.
void ReleaseTypedValue(PROPVARIANT& value);

}  // namespace ZDXEngine

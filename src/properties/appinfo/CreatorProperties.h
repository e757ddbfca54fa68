// Which program created a drawing, as properties.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/PropData.h"

namespace ZDXEngine {

// Adds "DWG Creator Name" and "DWG Creator Version" from the property sets that the file at `path`
// carries; one that isn't told there is left out, and both are where the sets can't be read to the
// end.  One that is told as something else than a text is added with a null text, whatever its
// value.
//
// Throws _com_error if a text can't be copied, ATL::CAtlException if one of the two is told as a
// date, std::out_of_range for a text that is too short to have a head.
void CollectCreatorProperties(std::vector<_PropData>& properties, const std::wstring& path);

}  // namespace ZDXEngine

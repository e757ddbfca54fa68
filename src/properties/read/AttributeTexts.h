// The text of an attribute as properties.
//
// With `byId` there are two records of the name `name`, the first under `formatId` and the second
// under the engine's own set; without it there is the second alone.  A text that can't be read
// gives them too, with a null text.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbBlocks.h"

namespace ZDXEngine {

// The text as stored.
void AddTextProperty(std::vector<_PropData>& properties, const ZnDbText* object,
                     const std::wstring& name, const GUID& formatId, bool byId);

// The text of an attribute or of a multi-line text on one line: each end of a line becomes a blank,
// and so does the first semicolon.
void AddMTextProperty(std::vector<_PropData>& properties, const ZnDbObject* object,
                      const std::wstring& name, const GUID& formatId, bool byId);

}  // namespace ZDXEngine

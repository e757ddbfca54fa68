// The values that blocks and their references carry, as properties.
//
// With `byId` true `formatId` tells which filter asks for the values.  With false the block's name
// does: its filter gives the format id and is marked as matched.  None of these fail: what can't be
// read is passed over.  Only a value that can't be allocated throws _com_error; what was handed in
// is left open then.
#pragma once

#include <vector>

#include "ZDXEngine/FilePropertyMgr.h"
#include "properties/read/ReferencePrompts.h"

namespace ZDXEngine {

// Adds a constant definition of a block and closes it; nothing without a filter, and no closing.
// With `byId` false its value is published under the engine's own set alone.
void AddConstantAttribute(std::vector<_PropData>& properties, ZnDbAttributeDefinition* definition,
                          const GUID& formatId, std::vector<BlockFilterParam>& filters, bool byId);

// Adds all attributes of a reference and closes it, unless it has none.  With `byId` false only a
// filter that isn't matched yet counts; without one they are named by their tags and published
// under the engine's own set alone.
void AddReferenceAttributes(std::vector<_PropData>& properties, ZnDbBlockReference* reference,
                            const GUID& formatId, std::vector<BlockFilterParam>& filters,
                            bool byId);

// Adds one attribute, the `ordinal`th of its reference that opened, counted from 1.
void AddAttribute(std::vector<_PropData>& properties, const ZnDbAttribute* attribute,
                  const GUID& formatId, ReferencePrompts& prompts, bool usePrompt, int ordinal,
                  bool byId);

}  // namespace ZDXEngine

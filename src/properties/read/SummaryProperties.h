// The summary fields and custom entries of a drawing as properties.
#pragma once

#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Adds the seven standard fields; one that can't be read is left out.
void CollectSummaryProperties(std::vector<_PropData>& properties, ZnDbDatabase* database);

// Adds the custom entries, each under its key; one that can't be read is left out.
void CollectCustomSummaryProperties(std::vector<_PropData>& properties, ZnDbDatabase* database);

}  // namespace ZDXEngine

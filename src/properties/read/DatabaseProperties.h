// Nine text settings of a drawing as properties.
#pragma once

#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Adds the settings in their fixed order; one that can't be read is left out.
void CollectDatabaseProperties(std::vector<_PropData>& properties, ZnDbDatabase* database);

}  // namespace ZDXEngine

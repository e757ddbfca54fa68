// The geographic location of a drawing as properties.
#pragma once

#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Adds the nineteen values of the drawing's location object in their fixed order; nothing if it has
// none, or the object can't be opened.
void CollectGeoProperties(std::vector<_PropData>& properties, ZnDbDatabase* database);

}  // namespace ZDXEngine

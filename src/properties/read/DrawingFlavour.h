// Which product of the family made a drawing.
#pragma once

#include <vector>

#include "ZDXEngine/FilePropertyMgr.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Looks for the marks that the products leave.  Throws if the block table can't be opened or
// `database` is null, with an empty file name in the sentence; every other failure means that the
// mark in question isn't there.
DwgFileType GetDrawingFlavour(ZnDbDatabase* database);

// The text of the "DWG Type" property for `type`.
const wchar_t* DrawingFlavourText(DwgFileType type);

// Adds the "DWG Type" property.
void CollectDrawingFlavour(std::vector<_PropData>& properties, ZnDbDatabase* database);

}  // namespace ZDXEngine

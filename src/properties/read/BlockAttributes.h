// The attribute values of named blocks as properties.
#pragma once

#include <vector>

#include "ZDXEngine/FilePropertyMgr.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Adds, for each block that a filter names, its constant definitions and the attributes of one of
// its references: the first that stands in a layout met before the block, else the first that
// opens, else the first of the first anonymous copy of a dynamic block.  The blocks of layouts are
// passed over, and so is everything that can't be read.  Throws _com_error if a value can't be
// allocated.  Nothing if `database` is null.
void GetBlockAttributes(std::vector<BlockFilterParam>& filters, std::vector<_PropData>& properties,
                        ZnDbDatabase* database);

}  // namespace ZDXEngine

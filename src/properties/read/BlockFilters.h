// Which filter a block's values are published by.  The first filter that fits wins; null if none
// does.
#pragma once

#include <vector>

#include "ZDXEngine/FilePropertyMgr.h"

namespace ZDXEngine {

// By the block's name, whatever its case.
BlockFilterParam* FindFilter(std::vector<BlockFilterParam>& filters, const wchar_t* blockName);
// Likewise, among those that aren't marked as matched.
BlockFilterParam* FindFreeFilter(std::vector<BlockFilterParam>& filters, const wchar_t* blockName);
// By the set under which the values are published.
BlockFilterParam* FindFilter(std::vector<BlockFilterParam>& filters, const GUID& formatId);

}  // namespace ZDXEngine

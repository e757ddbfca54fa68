// Blocks that stand for overlaid drawings.
#pragma once

#include <cstdint>
#include <unordered_set>

#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// The handles for which FileReferenceMgr::IsOverlay is true, found in one reading of the block
// table: to ask for each reference would read it as often as there are references.
std::unordered_set<std::uint64_t> OverlaidBlocks(ZnDbDatabase* database);

}  // namespace ZDXEngine

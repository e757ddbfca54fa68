// The values of named blocks among the properties of a drawing.
//
// The engine puts them behind all others, each as two records: one under its filter's format id,
// and directly behind it the same value under FMTID_Storage.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "BlockFilter.h"
#include "ZDXEngine/PropData.h"

namespace zdx {

// How many of `properties`, all at their end, are values of `blocks`.
std::size_t CountBlockValues(std::span<const ZDXEngine::_PropData> properties,
                             std::span<const BlockFilter> blocks);

// The values that were published under one format id.
struct BlockValues {
  // The blocks that were named with that id; at least one.
  std::vector<const BlockFilter*> blocks;
  // The second record of each value, which has its name under every format id.
  std::vector<const ZDXEngine::_PropData*> values;
};

// For each format id of `blocks`, in the order in which they first come, what `properties`, which
// are nothing but blocks' values, hold of it.
std::vector<BlockValues> SortBlockValues(std::span<const ZDXEngine::_PropData> properties,
                                         std::span<const BlockFilter> blocks);

}  // namespace zdx

// What files say of dynamic blocks and of the anonymous blocks that carry their variations.
#pragma once

#include <string>
#include <vector>

#include "support/drawing/DrawingSpec.h"
#include "support/drawing/Version.h"

namespace drawing {

// Whether the record of `block` has another name than the block.
bool IsDynamicHidden(const BlockSpec& block, Version version);

// The entries of the extension dictionary of the block's record.
std::vector<NamedObject> RecordExtension(const BlockSpec& block, Version version);

// The extended data of the block's record.  `original` is the handle of the record of the block
// that this one is a copy of.
std::vector<Tag> RecordData(const BlockSpec& block, Version version, const std::string& original);

}  // namespace drawing

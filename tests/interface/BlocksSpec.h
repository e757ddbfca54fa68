// Drawings with blocks that carry attributes, for tests of what is told of them.
#pragma once

#include "support/drawing/DrawingSpec.h"

namespace zdx_test {

// Definitions of each kind, references in model space, on paper and in a block, a dynamic block
// with two copies and an array.  The handles of the references ascend as they are drawn.
drawing::DrawingSpec SpecWithBlocks();

inline constexpr const char* kNote = "first\nsecond;third;fourth";

}  // namespace zdx_test

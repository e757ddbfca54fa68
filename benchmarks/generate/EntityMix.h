#pragma once

#include "generate/Frame.h"
#include "generate/LargeDrawing.h"
#include "generate/TagStream.h"

namespace bench {

// Writes the ENTITIES section: lines, polylines, circles, texts and inserts in the shares of a
// plan, over all layers, until the file has `untilBytes` bytes.
void WriteEntities(TagStream& out, std::uint64_t untilBytes, Frame& frame, Counts& counts);

}  // namespace bench

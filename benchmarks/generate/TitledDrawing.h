#pragma once

#include <string>
#include <vector>

#include "generate/LargeDrawing.h"
#include "support/drawing/DrawingSpec.h"

namespace bench {

// Where the entities of a titled drawing stand.
enum class Place {
  ModelSpace,
  // In a block that model space shows once.
  Block,
};

// A drawing of many entities of which every tenth is a reference of the block TITLE, with
// attributes of its own values; the others are lines, circles and texts.
struct TitledDrawing {
  drawing::DrawingSpec spec;
  // What a reader that is asked for the block, by tags, must tell of it.
  Expected expected;
};

TitledDrawing MakeTitledDrawing(const std::string& version, int entities, Place place);

}  // namespace bench

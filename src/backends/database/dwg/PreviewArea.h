// The area that holds the preview pictures, alike in every version.
//
//   mark; size of what follows up to the inverted mark (4 bytes)
//   number of pictures (1 byte); each: kind (1), address in the file (4), size (4)
#pragma once

#include <cstdint>
#include <vector>

#include "backends/database/dwg/container/Container.h"
#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

// The pictures of the kinds that are known, in stored order, but for those whose bytes aren't
// there, of which `report` is told.
std::vector<model::StoredPicture> ReadPreviewArea(Section& section, model::Report& report);

}  // namespace zdx::dwg

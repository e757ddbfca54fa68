// From a stored preview picture to a bitmap.
#pragma once

#include "backends/database/model/Drawing.h"
#include "backends/database/preview/Dib.h"

namespace zdx::preview {

// `picture` as a bitmap, or why it can't be shown.  Throws std::bad_alloc alone.
Showing ShowPicture(const model::StoredPicture& picture);

}  // namespace zdx::preview

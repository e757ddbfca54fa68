// A bitmap as drawings store it: head, colours and rows, without the head of a file.
#pragma once

#include <string_view>

#include "backends/database/preview/Dib.h"

namespace zdx::preview {

// The bitmap at the begin of `bytes`.
Showing ShowBitmap(std::string_view bytes);

}  // namespace zdx::preview

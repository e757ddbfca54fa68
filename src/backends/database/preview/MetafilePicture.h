// A preview picture that is a Windows metafile.
#pragma once

#include <string_view>

#include "backends/database/preview/Dib.h"

namespace zdx::preview {

// The first device-independent bitmap that the metafile draws, whole.  A metafile that draws lines
// and areas alone can't be shown.
Showing ShowMetafile(std::string_view bytes);

}  // namespace zdx::preview

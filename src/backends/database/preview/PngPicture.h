// A preview picture in PNG.
#pragma once

#include <string_view>

#include "backends/database/preview/Dib.h"

namespace zdx::preview {

// The picture that `bytes` is.  Pictures with a palette and grey ones of up to 8 bits come with a
// colour table of 8 bits, others with 24 bits a pixel; what can be seen through lies on white.
Showing ShowPng(std::string_view bytes);

}  // namespace zdx::preview

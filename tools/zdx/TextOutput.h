// Text for a person to read.
#pragma once

#include <string>

#include "DrawingReport.h"

namespace zdx {

// The drawing as a head and groups of aligned rows, UTF-8, ending in a line end.
std::string TextOf(const std::wstring& path, const DrawingReport& report);

}  // namespace zdx

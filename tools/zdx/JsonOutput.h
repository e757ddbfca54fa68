// JSON for programs to read.
#pragma once

#include <string>

#include "DrawingReport.h"

namespace zdx {

// One JSON document on one line, UTF-8, ending in a line end.  docs/json.md tells its form.
std::string JsonOf(const std::wstring& path, const DrawingReport& report);

}  // namespace zdx

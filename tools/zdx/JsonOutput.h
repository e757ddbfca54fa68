// JSON for programs to read.
#pragma once

#include <string>

#include "DrawingReport.h"
#include "Failure.h"

namespace zdx {

// One JSON document on one line, UTF-8, ending in a line end.  docs/json.md tells its form.
std::string JsonOf(const std::wstring& path, const DrawingReport& report);
// The same for a file that couldn't be read.
std::string JsonOf(const std::wstring& path, const Failure& failure);

}  // namespace zdx

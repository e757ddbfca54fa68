// JSON of a file that couldn't be read.
#pragma once

#include <string>

#include "Failure.h"

namespace zdx {

// One JSON document on one line, UTF-8, ending in a line end.  docs/json.md tells its form.
std::string JsonOf(const std::wstring& path, const Failure& failure);

}  // namespace zdx

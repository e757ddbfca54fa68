// The shuffled order in which AC1021 stores literal bytes.
#pragma once

#include <string_view>

#include "backends/database/dwg/container/OutputWindow.h"

namespace zdx::dwg {

// Appends the literals of `run`, which is taken whole from the compressed stream, in their true
// order.  False if they don't fit.
bool AppendLiterals(std::string_view run, OutputWindow& out);

}  // namespace zdx::dwg

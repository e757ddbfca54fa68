// A graph for Graphviz.
#pragma once

#include <string>

#include "FileGraph.h"

namespace zdx {

// A graph in the DOT language, UTF-8, ending in a line end.
std::string DotOf(const FileGraph& graph);

}  // namespace zdx

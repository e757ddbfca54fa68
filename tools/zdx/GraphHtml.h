// A graph as a page.
#pragma once

#include <string>

#include "FileGraph.h"

namespace zdx {

// One HTML page that holds all it needs: the graph as a picture, and a list of its files.  UTF-8,
// ending in a line end.
std::string HtmlOf(const FileGraph& graph);

}  // namespace zdx

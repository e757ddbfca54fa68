// Where the files of a graph stand on a page.
#pragma once

#include <cstddef>
#include <vector>

#include "FileGraph.h"

namespace zdx {

// Counted from 0, from the left and from the top.
struct GraphPlace {
  std::size_t column = 0;
  std::size_t row = 0;
};

// The places of the nodes, no two alike.  A file's column tells by how many references it is
// reached at least.  What a file is reached from first stands in its row or above.
std::vector<GraphPlace> LayOut(const FileGraph& graph);

}  // namespace zdx

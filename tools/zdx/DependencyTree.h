// References in the order in which a person reads a tree.
#pragma once

#include <cstddef>
#include <vector>

#include "DependencyReport.h"

namespace zdx {

// A reference in the tree.
struct TreeEntry {
  const DependencyRecord* record = nullptr;
  // Below how many drawings beside the walked one it stands.
  std::size_t depth = 0;
  // Whether it is the last one of the drawing that refers to it.
  bool isLast = false;
};

// Each reference directly before those of its drawing.  Of a report that tells what is missing
// alone, these and what leads to them.
std::vector<TreeEntry> TreeOf(const DependencyReport& report);

}  // namespace zdx

// One walk: from a drawing to all files that it depends on.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backends/walker/Node.h"
#include "backends/walker/Surroundings.h"

namespace zdx::walker {

// The nodes in breadth-first order: the drawing at `path` first, alone if it can't be read, and
// with its opened drawing if it can.  Every drawing below is opened once, after the one before it
// was closed; none is if `directOnly`.
std::vector<std::unique_ptr<Node>> WalkDrawing(Surroundings& surroundings, const std::wstring& path,
                                               ZnDwgDepends::DwgDependsSettings settings,
                                               bool directOnly);

// What went wrong, in the nodes' order.  What has the first one's name, in any case, isn't told:
// an entry of that name says that the walked drawing failed.
std::vector<ZnDwgDepends::DwgDepends::ErrorInfo> ErrorsOf(
    const std::vector<std::unique_ptr<Node>>& nodes);

}  // namespace zdx::walker

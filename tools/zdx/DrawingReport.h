// What was read of one file.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "Failure.h"
#include "Selection.h"
#include "ZDXEngine/Diagnostics.h"
#include "ZDXEngine/PropData.h"

namespace zdx {

// A drawing that was read.
struct DrawingReport {
  // The text of the "DWG Type" property.
  std::wstring drawingType;
  // What the engine gave, in its order, and the "DWG Type" property whether it was selected or not.
  std::vector<ZDXEngine::_PropData> properties;
  // Whether the "DWG Type" property belongs to what was selected.
  bool drawingTypeSelected = true;
  // Empty but for its path if the engine tells of another opening.
  ZDXEngine::Diagnostics diagnostics;
};

// Reads what `selection` names of the drawing at `path`, opening it once.  The engine must be
// running.
std::variant<DrawingReport, Failure> ReadDrawing(const std::wstring& path, Selection selection);

}  // namespace zdx

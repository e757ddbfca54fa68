#pragma once

#include <string>
#include <vector>

#include "support/drawing/DrawingSpec.h"
#include "support/dxf/DxfMaker.h"

namespace examples {

// A drawing of this folder, as the maker makes it.
struct ExampleDrawing {
  std::string fileName;
  drawing::DrawingSpec spec;
  dxf::Writing writing = {};
};

drawing::DrawingSpec SitePlan();
drawing::DrawingSpec Grading();
drawing::DrawingSpec Survey();
drawing::DrawingSpec LegacyPlan();

std::vector<ExampleDrawing> AllDrawings();

}  // namespace examples

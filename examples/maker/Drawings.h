#pragma once

#include <string>
#include <vector>

#include "support/dxf/DrawingSpec.h"

namespace examples {

// A drawing of this folder, as the maker makes it.
struct ExampleDrawing {
  std::string fileName;
  dxf::DrawingSpec spec;
};

dxf::DrawingSpec SitePlan();
dxf::DrawingSpec Grading();
dxf::DrawingSpec Survey();
dxf::DrawingSpec LegacyPlan();

std::vector<ExampleDrawing> AllDrawings();

}  // namespace examples

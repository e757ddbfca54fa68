#pragma once

#include <string>
#include <vector>

#include "support/drawing/DrawingSpec.h"

namespace examples {

// A file of this folder, by its path from here, as the makers make it.
struct ExampleFile {
  std::string fileName;
  std::string bytes;
};

// With its location in the form of that version.
drawing::DrawingSpec SitePlan(const std::string& version);
drawing::DrawingSpec Grading();
drawing::DrawingSpec Survey();
drawing::DrawingSpec LegacyPlan();

std::vector<ExampleFile> AllFiles();

}  // namespace examples

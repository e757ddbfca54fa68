#pragma once

#include <string>

#include "support/drawing/DrawingSpec.h"

namespace examples {

// A plant as a set of drawings that refer to each other, in the folder of that name.  In metres.

inline constexpr const char* kPlantPhotoName = "plant/pictures/chimney.png";

// Refers to all the others, and to files that there aren't.
drawing::DrawingSpec Plant();
drawing::DrawingSpec Halls();
drawing::DrawingSpec Machines();
drawing::DrawingSpec Pipes();

// A document of one page: how what is made flows through the plant.
std::string FlowSheet();

}  // namespace examples

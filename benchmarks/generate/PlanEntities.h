#pragma once

#include <random>
#include <string>

#include "support/drawing/DrawingSpec.h"

namespace bench {

inline constexpr int kPlanLayers = 50;

std::string PlanLayer(int number);

// The entity of that number: lines, circles and texts all over the layers, with coordinates that
// don't compress well.
drawing::EntitySpec PlanEntity(int number, std::mt19937& random);

}  // namespace bench

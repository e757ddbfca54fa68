#include "maker/Drawings.h"

namespace examples {

std::vector<ExampleDrawing> AllDrawings() {
  return {{"site-plan.dxf", SitePlan()},
          {"grading.dxf", Grading(), {.lineEnd = "\n"}},
          {"survey-r2000.dxf", Survey()},
          {"legacy-r12.dxf", LegacyPlan(), {.form = dxf::Form::Binary}}};
}

}  // namespace examples

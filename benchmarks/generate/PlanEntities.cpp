#include "generate/PlanEntities.h"

namespace bench {

std::string PlanLayer(int number) { return "PLAN-" + std::to_string(number); }

drawing::EntitySpec PlanEntity(int number, std::mt19937& random) {
  const auto coordinate = [&random] { return static_cast<double>(random()) / 1e5; };
  const std::string layer = PlanLayer(number % kPlanLayers);
  const drawing::Point at = {coordinate(), coordinate()};
  if (number % 10 == 0) return drawing::Text(layer, at, 2.5, "Room " + std::to_string(number));
  if (number % 5 == 0) return drawing::Circle(layer, at, coordinate());
  return drawing::Line(layer, at, {coordinate(), coordinate()});
}

}  // namespace bench

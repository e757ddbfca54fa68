#include "maker/Drawings.h"
#include "maker/Ground.h"

namespace examples {
namespace {

constexpr const char* kProposed = "C-PROPOSED";
constexpr const char* kSlopes = "C-SLOPES";
constexpr const char* kLevels = "C-LEVELS";
constexpr const char* kReferences = "X-REFERENCES";

// The platforms lie level; elsewhere the ground stays.
void AddContours(std::vector<drawing::EntitySpec>& entities) {
  for (int quarters = 165; quarters < 194; ++quarters) {
    const std::vector<drawing::Point> line = Contour(quarters / 4.0, 4);
    if (line.size() > 1) entities.push_back(drawing::Polyline(kProposed, line));
  }
}

// Short and long strokes in turn, from the edge of a platform downhill.
void AddSlope(std::vector<drawing::EntitySpec>& entities, drawing::Point corner, double width) {
  for (int stroke = 0; stroke <= static_cast<int>(width); ++stroke) {
    const double x = corner.x + stroke;
    const double length = stroke % 2 == 0 ? 2.5 : 1.2;
    entities.push_back(drawing::Line(kSlopes, {x, corner.y}, {x, Millimetres(corner.y - length)}));
  }
}

void AddLevels(std::vector<drawing::EntitySpec>& entities) {
  Scatter scatter(5);
  for (int i = 0; i < 30; ++i) {
    const drawing::Point at{scatter.Between(6, 112), scatter.Between(6, 70)};
    entities.push_back(drawing::Insert(
        "LEVEL", {{.tag = "LEVEL", .value = HeightText(GroundHeight(at)), .at = at, .height = 0.7}},
        {.at = at}, kLevels));
  }
}

}  // namespace

drawing::DrawingSpec Grading() {
  drawing::DrawingSpec spec;
  spec.version = "AC1027";
  spec.layers = {
      {"0"}, {kProposed, 3, "PROPOSED"}, {kSlopes, 32}, {kLevels, 2}, {kReferences, 252}};
  spec.linetypes = {{"PROPOSED", "Proposed ground ____ __ ____ __", {4, -1, 1.5, -1}}};
  spec.summary.title = "Alder Court: grading";
  spec.summary.author = "S. Sample";
  spec.summary.lastSavedBy = "drawing office";
  spec.customProperties = {{"Project number", "2024-017"}};
  spec.blocks = {
      {.name = "LEVEL",
       .definitions = {{.tag = "LEVEL", .value = "0.00", .prompt = "Level in metres?"}},
       .entities = {drawing::Circle("0", {}, 0.3), drawing::Line("0", {-0.5, 0}, {0.5, 0}),
                    drawing::Line("0", {0, -0.5}, {0, 0.5})}},
      drawing::XrefBlock("survey", "survey-r2000.dxf")};
  spec.entities = {drawing::Insert("survey", {}, {}, kReferences),
                   drawing::Polyline(kProposed, Rectangle({16, 32}, 32, 28), true),
                   drawing::Polyline(kProposed, Rectangle({68, 36}, 26, 18), true)};
  AddContours(spec.entities);
  AddSlope(spec.entities, {16, 32}, 32);
  AddSlope(spec.entities, {68, 36}, 26);
  AddLevels(spec.entities);
  return spec;
}

}  // namespace examples

#include "maker/Drawings.h"
#include "maker/Ground.h"

namespace examples {
namespace {

constexpr const char* kWalls = "WALLS";
constexpr const char* kDoors = "DOORS";
constexpr const char* kDimensions = "DIMENSIONS";
constexpr const char* kText = "TEXT";
constexpr double kWall = 0.3;
constexpr double kDoor = 0.9;

void AddRoom(std::vector<drawing::EntitySpec>& entities, int number, drawing::Point corner,
             double width, double depth) {
  const drawing::Point inner{Millimetres(corner.x + kWall), Millimetres(corner.y + kWall)};
  entities.push_back(drawing::Polyline(kWalls, Rectangle(corner, width, depth), true));
  entities.push_back(
      drawing::Polyline(kWalls, Rectangle(inner, width - 2 * kWall, depth - 2 * kWall), true));
  entities.push_back(drawing::Arc(kDoors, inner, kDoor, 0, 90));
  entities.push_back(drawing::Line(kDoors, inner, {inner.x, Millimetres(inner.y + kDoor)}));
  const drawing::Point centre{Millimetres(corner.x + width / 2), Millimetres(corner.y + depth / 2)};
  entities.push_back(drawing::Insert(
      "ROOM",
      {{.tag = "NUMBER", .value = std::to_string(number), .at = centre, .height = 0.3},
       {.tag = "AREA",
        .value = HeightText((width - 2 * kWall) * (depth - 2 * kWall)) + " m²",
        .at = centre,
        .height = 0.2}},
      {.at = centre}, kText));
  Append(entities, WidthMark(kDimensions, {corner.x, Millimetres(corner.y - 1)}, width));
}

}  // namespace

drawing::DrawingSpec LegacyPlan() {
  drawing::DrawingSpec spec;
  spec.version = "AC1009";
  spec.layers = {{"0"}, {kWalls, 7}, {kDoors, 3, "HIDDEN"}, {kDimensions, 4}, {kText, 2}};
  spec.linetypes = {{"HIDDEN", "Hidden __ __ __ __", {0.5, -0.25}}};
  spec.textStyles = {"STANDARD"};
  spec.views = {"GROUND_FLOOR"};
  spec.settings.menu = "office";
  spec.settings.dimpost = " m";
  spec.blocks = {{.name = "ROOM",
                  .definitions = {{.tag = "NUMBER", .value = "1", .prompt = "Room number?"},
                                  {.tag = "AREA", .prompt = "Area?"}},
                  .entities = {drawing::Circle("0", {}, 0.4)}}};
  for (int floor = 0; floor < 6; ++floor) {
    for (int room = 0; room < 10; ++room) {
      const double width = 3.6 + 0.3 * (room % 3);
      AddRoom(spec.entities, (floor + 1) * 100 + room + 1,
              {Millimetres(room * 5.0), Millimetres(floor * 8.0)}, Millimetres(width), 5.4);
    }
  }
  return spec;
}

}  // namespace examples

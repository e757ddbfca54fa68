#include "maker/Plant.h"

#include "maker/Ground.h"

namespace examples {
namespace {

constexpr const char* kWalls = "WALLS";
constexpr const char* kGates = "GATES";
constexpr const char* kMachines = "MACHINES";
constexpr const char* kWater = "WATER";
constexpr const char* kSteam = "STEAM";
constexpr const char* kText = "TEXT";
constexpr const char* kReferences = "REFERENCES";

constexpr double kHallWidth = 40.0;
constexpr double kHallDepth = 24.0;
constexpr double kHallPitch = 48.0;
constexpr int kHalls = 2;

drawing::DrawingSpec Sheet(const char* version, const char* title) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.summary.title = title;
  spec.summary.author = "S. Sample";
  spec.summary.lastSavedBy = "drawing office";
  // An outline font of the system's, which is no file of the plant's.
  spec.textStyles = {{"Standard", ""}};
  spec.textStyles[0].family = "Sans";
  return spec;
}

drawing::EntitySpec Reference(const char* block) {
  return drawing::Insert(block, {}, {}, kReferences);
}

drawing::Point HallCorner(int hall) { return {hall * kHallPitch, 0.0}; }

void AddHall(std::vector<drawing::EntitySpec>& entities, int hall) {
  const drawing::Point corner = HallCorner(hall);
  entities.push_back(drawing::Polyline(kWalls, Rectangle(corner, kHallWidth, kHallDepth), true));
  for (int gate = 0; gate < 3; ++gate) {
    const double x = corner.x + 6 + 12 * gate;
    entities.push_back(drawing::Line(kGates, {x, 0.0}, {x + 4, 0.0}));
  }
  entities.push_back(drawing::Text(kText, {corner.x + 1, kHallDepth - 2}, 1.2,
                                   "Hall " + std::to_string(hall + 1)));
}

void AddMachines(std::vector<drawing::EntitySpec>& entities, int hall) {
  for (int machine = 0; machine < 6; ++machine) {
    const drawing::Point at{HallCorner(hall).x + 5 + 6 * machine, machine % 2 == 0 ? 8.0 : 16.0};
    const std::string number = std::to_string(100 * (hall + 1) + machine + 1);
    entities.push_back(
        drawing::Insert("MACHINE", {{.tag = "NUMBER", .value = number, .at = at, .height = 0.8}},
                        {.at = at}, kMachines));
  }
}

}  // namespace

drawing::DrawingSpec Plant() {
  drawing::DrawingSpec spec = Sheet("AC1032", "Alder Works: the plant");
  spec.layers = {{"0"}, {kReferences, 252}, {kText, 7}};
  spec.textStyles.emplace_back("Signs", "plant-signs.shx");
  spec.blocks = {drawing::XrefBlock("halls", "halls.dwg"),
                 drawing::XrefBlock("pipes", "pipes.dxf", drawing::Xref::Overlaid),
                 drawing::XrefBlock("roof", "roof.dwg")};
  spec.entities = {Reference("halls"), Reference("pipes"), Reference("roof"),
                   drawing::Text(kText, {0, -4}, 1.5, "Alder Works")};
  // With the separator of the system that the drawing was drawn on.
  spec.images = {{.name = "chimney",
                  .path = "pictures\\chimney.png",
                  .pixelsAcross = 160,
                  .pixelsUp = 96,
                  .at = {0, 30},
                  .width = 20,
                  .layer = kReferences}};
  spec.underlays = {{.name = "flow-sheet - 1", .path = "flow-sheet.pdf"}};
  return spec;
}

drawing::DrawingSpec Halls() {
  drawing::DrawingSpec spec = Sheet("AC1027", "Alder Works: halls");
  spec.layers = {{"0"}, {kWalls, 7}, {kGates, 3}, {kText, 2}, {kReferences, 252}};
  spec.blocks = {drawing::XrefBlock("machines", "machines.dxf")};
  spec.entities = {Reference("machines")};
  for (int hall = 0; hall < kHalls; ++hall) AddHall(spec.entities, hall);
  return spec;
}

drawing::DrawingSpec Machines() {
  drawing::DrawingSpec spec = Sheet("AC1015", "Alder Works: machines");
  spec.layers = {{"0"}, {kMachines, 4}};
  spec.blocks = {{.name = "MACHINE",
                  .definitions = {{.tag = "NUMBER", .value = "0", .prompt = "Number?"}},
                  .entities = {drawing::Polyline("0", Rectangle({-2, -1.5}, 4, 3), true),
                               drawing::Circle("0", {}, 1.0)}}};
  for (int hall = 0; hall < kHalls; ++hall) AddMachines(spec.entities, hall);
  return spec;
}

drawing::DrawingSpec Pipes() {
  drawing::DrawingSpec spec = Sheet("AC1032", "Alder Works: pipes");
  spec.layers = {{"0"}, {kWater, 5}, {kSteam, 1, "STEAM"}, {kReferences, 252}};
  spec.linetypes = {{"STEAM", "Steam ____ . ____ .", {2, -0.5, 0, -0.5}}};
  spec.blocks = {drawing::XrefBlock("machines", "machines.dxf")};
  spec.entities = {Reference("machines")};
  for (int hall = 0; hall < kHalls; ++hall) {
    const double x = HallCorner(hall).x;
    spec.entities.push_back(drawing::Polyline(kWater, {{x, 12}, {x + 36, 12}, {x + 36, 20}}));
    spec.entities.push_back(drawing::Polyline(kSteam, {{x, 4}, {x + 38, 4}, {x + 38, 20}}));
  }
  return spec;
}

}  // namespace examples

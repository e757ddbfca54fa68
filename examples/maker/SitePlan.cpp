#include "maker/Drawings.h"
#include "maker/Ground.h"
#include "support/dxf/GeoSpec.h"

namespace examples {
namespace {

constexpr const char* kBoundary = "L-BOUNDARY";
constexpr const char* kBuilding = "A-BUILDING";
constexpr const char* kRoad = "C-ROAD";
constexpr const char* kContour = "L-CONTOUR";
constexpr const char* kHeights = "L-SPOT-HEIGHTS";
constexpr const char* kDimensions = "A-DIMENSIONS";
constexpr const char* kNotes = "A-NOTES";
constexpr const char* kTitle = "A-TITLE";
constexpr const char* kReferences = "X-REFERENCES";
// "Plants" in Greek, "car park" in Japanese.
constexpr const char* kPlants = "Φυτά";
constexpr const char* kCarPark = "駐車場";

constexpr const char* kHouseOutline = "A10";
constexpr const char* kHouseText = "A11";
constexpr const char* kWorkshopOutline = "A12";

void AddTables(dxf::DrawingSpec& spec) {
  spec.layers = {{"0"},
                 {kBoundary, 1, "BOUNDARY"},
                 {kBuilding, 7},
                 {kRoad, 8},
                 {kContour, 34, "GROUND"},
                 {kHeights, 34},
                 {kDimensions, 4},
                 {kNotes, 7},
                 {kTitle, 5},
                 {kReferences, 252},
                 {kPlants, 94},
                 {kCarPark, 6, "HIDDEN"}};
  spec.linetypes = {{"BOUNDARY", "Plot boundary ____ _ _ ____ _ _", {6, -1.5, 1, -1.5, 1, -1.5}},
                    {"HIDDEN", "Hidden __ __ __ __ __", {2, -1}},
                    {"GROUND", "Existing ground ____ . ____ .", {5, -1, 0, -1}},
                    {"KERB", "", {3, -0.5}}};
  spec.textStyles = {"Standard", {"Notes", "isocp.shx"}, {"Schrift", "arial.ttf", "bigfont.shx"}};
  spec.views = {{"Whole plot", {60, 40}, 150, 100}, {"Entrance", {24, 6}, 40, 25}};
}

void AddDescription(dxf::DrawingSpec& spec) {
  spec.summary = {.title = "Alder Court: site plan",
                  .subject = "Two buildings, access road and planting",
                  .author = "R. Example",
                  .keywords = "site plan; planting; access",
                  .comments = "For comment.\nNot for construction.",
                  .lastSavedBy = "drawing office",
                  .revisionNumber = "C"};
  spec.customProperties = {{"Client", "Alder Court Residents"},
                           {"Project number", "2024-017"},
                           {"Αρχιτέκτονας", "Ε. Παράδειγμα"},
                           {"備考", "確認済み"}};
  spec.settings.projectName = "Alder Court";
  spec.settings.hyperlinkBase = "drawings/alder-court";
  spec.settings.styleSheet = "office.css";
  spec.settings.dimpost = "<> m";
  spec.settings.dimblk = "ArchTick";
}

dxf::BlockSpec TitleBlock() {
  dxf::BlockSpec block{.name = "TITLE_BLOCK", .description = "Title block of the drawing office"};
  block.definitions = {
      {.tag = "PROJECT", .value = "Project", .prompt = "Project name?", .at = {150, 40}},
      {.tag = "DRAWING_NO", .value = "000", .prompt = "Drawing number?", .at = {150, 34}},
      {.tag = "SCALE", .value = "1:500", .prompt = "Scale?", .at = {150, 28}},
      {.tag = "DRAWN_BY", .prompt = "Drawn by?", .at = {150, 22}},
      {.tag = "CLIENT", .prompt = "Client (in the client's own script)?", .at = {150, 16}},
      {.tag = "NOTES", .prompt = "Notes?", .multiLine = true, .at = {90, 40}},
      {.tag = "OFFICE",
       .value = "Example Drawing Office",
       .flags = dxf::kConstant,
       .at = {150, 10}},
      {.tag = "CHECKED", .value = "no", .prompt = "Checked?", .flags = dxf::kInvisible}};
  block.entities = {dxf::Polyline("0", Rectangle({85, 5}, 110, 45), true),
                    dxf::Line("0", {85, 14}, {195, 14}), dxf::Line("0", {145, 5}, {145, 50})};
  return block;
}

dxf::EntitySpec TitleInsert() {
  return dxf::Insert(
      "TITLE_BLOCK",
      {{.tag = "PROJECT", .value = "Alder Court", .at = {150, 40}},
       {.tag = "DRAWING_NO", .value = "017-L-101", .at = {150, 34}},
       {.tag = "SCALE", .value = "1:500", .at = {150, 28}},
       {.tag = "DRAWN_BY", .value = "R. Example", .at = {150, 22}},
       {.tag = "CLIENT", .value = "ハンノキ自治会 / Σύλλογος Κατοίκων", .at = {150, 16}},
       {.tag = "NOTES",
        .value = "Levels in metres above datum.\nTrees as surveyed; see schedule.",
        .multiLine = true,
        .at = {90, 40}},
       {.tag = "CHECKED", .value = "yes", .flags = dxf::kInvisible}},
      {}, kTitle);
}

void AddBlocks(dxf::DrawingSpec& spec) {
  spec.blocks = {TitleBlock()};
  spec.blocks.push_back({.name = "TREE",
                         .definitions = {{.tag = "SPECIES", .prompt = "Species?", .height = 0.6},
                                         {.tag = "GIRTH", .prompt = "Girth in cm?", .height = 0.4}},
                         .entities = {dxf::Circle("0", {}, 1.8), dxf::Circle("0", {}, 0.2),
                                      dxf::Line("0", {-1.8, 0}, {1.8, 0})}});
  spec.blocks.push_back({.name = "NORTH_ARROW",
                         .entities = {dxf::Line("0", {0, -4}, {0, 4}), dxf::Circle("0", {}, 3),
                                      dxf::Polyline("0", {{-1, 2}, {0, 4}, {1, 2}}),
                                      dxf::Text("0", {-0.6, 4.6}, 1.6, "N")}});
  // The arrow that the settings name, without the underscore.
  spec.blocks.push_back(
      {.name = "_ArchTick", .entities = {dxf::Polyline("0", {{-0.5, -0.5}, {0.5, 0.5}})}});
  spec.blocks.push_back(dxf::XrefBlock("grading", ".\\grading.dxf"));
  spec.blocks.push_back(dxf::XrefBlock("survey", "survey-r2000.dxf", dxf::Xref::Overlaid));
}

void AddBuildings(std::vector<dxf::EntitySpec>& entities) {
  entities.push_back(
      dxf::Polyline(kBuilding, {{18, 34}, {46, 34}, {46, 46}, {38, 46}, {38, 58}, {18, 58}}, true));
  entities.back().handle = kHouseOutline;
  entities.push_back(dxf::Text(kNotes, {22, 45}, 1.6, "House A"));
  entities.back().handle = kHouseText;
  entities.push_back(dxf::Polyline(kBuilding, Rectangle({70, 38}, 22, 14), true));
  entities.back().handle = kWorkshopOutline;
  entities.push_back(dxf::Text(kNotes, {74, 44}, 1.6, "Workshop"));
  for (int window = 0; window < 10; ++window) {
    const double x = Millimetres(20 + window * 2.6);
    entities.push_back(dxf::Line(kBuilding, {x, 34}, {x, 34.3}));
  }
  Append(entities, WidthMark(kDimensions, {18, 31.5}, 28));
  Append(entities, WidthMark(kDimensions, {70, 35.5}, 22));
  Append(entities, WidthMark(kDimensions, {46, 31.5}, 24));
}

void AddRoads(std::vector<dxf::EntitySpec>& entities) {
  entities.push_back(dxf::Polyline(kRoad, {{0, 14}, {24, 14}, {30, 20}, {118, 22}}));
  entities.push_back(dxf::Polyline(kRoad, {{0, 20}, {21, 20}, {27, 26}, {117.5, 28}}));
  entities.push_back(dxf::Arc(kRoad, {24, 20}, 6, 270, 360));
  for (int bay = 0; bay < 14; ++bay) {
    entities.push_back(dxf::Polyline(kCarPark, Rectangle({56 + bay * 2.5, 8}, 2.5, 5), true));
    entities.push_back(
        dxf::Text(kCarPark, {56.6 + bay * 2.5, 10}, 0.9, "P" + std::to_string(bay + 1)));
  }
}

void AddGround(std::vector<dxf::EntitySpec>& entities) {
  for (int halfMetres = 83; halfMetres < 97; ++halfMetres) {
    const std::vector<dxf::Point> line = Contour(halfMetres / 2.0, 3);
    if (line.size() > 1) entities.push_back(dxf::Polyline(kContour, line));
  }
  for (int x = 10; x < kPlotWidth; x += 15) {
    for (int y = 5; y < kPlotDepth - 5; y += 15) {
      const dxf::Point at{static_cast<double>(x), static_cast<double>(y)};
      entities.push_back(dxf::Dot(kHeights, at));
      entities.push_back(
          dxf::Text(kHeights, {at.x + 0.4, at.y + 0.3}, 0.7, HeightText(GroundHeight(at))));
    }
  }
}

void AddTrees(std::vector<dxf::EntitySpec>& entities) {
  static constexpr const char* kSpecies[] = {"Alder", "Birch", "Ελιά", "桜", "Field maple"};
  Scatter scatter(17);
  for (int i = 0; i < 44; ++i) {
    const dxf::Point at{scatter.Between(4, 90), scatter.Between(60, 74)};
    const auto girth = std::to_string(40 + static_cast<int>(scatter.Next() * 120));
    const auto kind = static_cast<std::size_t>(scatter.Next() * std::size(kSpecies));
    entities.push_back(dxf::Insert("TREE",
                                   {{.tag = "SPECIES", .value = kSpecies[kind], .at = at},
                                    {.tag = "GIRTH", .value = girth, .at = at}},
                                   {.at = at}, kPlants));
  }
}

void AddPaper(dxf::DrawingSpec& spec) {
  spec.layouts = {{"A1 site plan",
                   {TitleInsert(), dxf::Polyline(kTitle, Rectangle({5, 5}, 410, 287), true)},
                   "office-mono.ctb"},
                  {"A3 planting",
                   {dxf::Text(kTitle, {20, 20}, 5, "Planting schedule"),
                    dxf::Text(kNotes, {20, 12}, 3, "See drawing 017-L-102")},
                   "office-colour.ctb"}};
  spec.layouts[1].pageSetup = "A3 draft";
  spec.plotSettings = {"A1 final", "A3 draft"};
}

void AddObjects(dxf::DrawingSpec& spec) {
  spec.groups = {{"HOUSE_A", "House with its name", {kHouseOutline, kHouseText}},
                 {"BUILDINGS", "Both outlines", {kHouseOutline, kWorkshopOutline}}};
  spec.mlineStyles = {"Standard", "WALL_300"};
  spec.rootEntries = {
      {"SITE_SCHEDULE", dxf::Dictionary({{"TREES", dxf::Xrecord({{1, "44"}, {40, 1.8}})},
                                         {"PARKING", dxf::Xrecord({{90, 14}})}})}};
  spec.classes = {{dxf::kGeoType, dxf::kGeoClass}};
  spec.modelExtension = {
      {dxf::kGeoKey, dxf::GeoObject({.coordinateType = 2,
                                     .referencePoint = {512300.0, 6213450.0, 41.0},
                                     .northX = 0.0523359562429438,
                                     .northY = 0.9986295347545738,
                                     .coordinateSystem = "LOCAL-GRID-17",
                                     .geoRss = "alder-court"})}};
  spec.images = {{.name = "site-photo",
                  .path = "site-photo.png",
                  .pixelsAcross = 160,
                  .pixelsUp = 96,
                  .at = {126, 0},
                  .width = 40,
                  .layer = kReferences}};
}

}  // namespace

dxf::DrawingSpec SitePlan() {
  dxf::DrawingSpec spec;
  AddTables(spec);
  AddDescription(spec);
  AddBlocks(spec);
  spec.entities = {dxf::Polyline(kBoundary, PlotBoundary(), true),
                   dxf::Insert("NORTH_ARROW", {}, {.at = {112, 70}, .angle = 3}, kNotes),
                   dxf::Insert("grading", {}, {}, kReferences),
                   dxf::Insert("survey", {}, {}, kReferences)};
  AddBuildings(spec.entities);
  AddRoads(spec.entities);
  AddGround(spec.entities);
  AddTrees(spec.entities);
  AddPaper(spec);
  AddObjects(spec);
  return spec;
}

}  // namespace examples

#include "maker/Drawings.h"
#include "maker/Ground.h"
#include "support/drawing/GeoSpec.h"

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

constexpr const char* kCoordinateSystem =
    "<CoordinateSystem id=\"LOCAL-GRID-17\">\n"
    "  <Description>A grid that was made up</Description>\n"
    "  <Unit>METER</Unit>\n"
    "</CoordinateSystem>";

void AddTables(drawing::DrawingSpec& spec) {
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

void AddDescription(drawing::DrawingSpec& spec) {
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

drawing::BlockSpec TitleBlock() {
  drawing::BlockSpec block{.name = "TITLE_BLOCK",
                           .description = "Title block of the drawing office"};
  block.definitions = {
      {.tag = "PROJECT", .value = "Project", .prompt = "Project name?", .at = {150, 40}},
      {.tag = "DRAWING_NO", .value = "000", .prompt = "Drawing number?", .at = {150, 34}},
      {.tag = "SCALE", .value = "1:500", .prompt = "Scale?", .at = {150, 28}},
      {.tag = "DRAWN_BY", .prompt = "Drawn by?", .at = {150, 22}},
      {.tag = "CLIENT", .prompt = "Client (in the client's own script)?", .at = {150, 16}},
      {.tag = "NOTES", .prompt = "Notes?", .multiLine = true, .at = {90, 40}},
      {.tag = "OFFICE",
       .value = "Example Drawing Office",
       .flags = drawing::kConstant,
       .at = {150, 10}},
      {.tag = "CHECKED", .value = "no", .prompt = "Checked?", .flags = drawing::kInvisible}};
  block.entities = {drawing::Polyline("0", Rectangle({85, 5}, 110, 45), true),
                    drawing::Line("0", {85, 14}, {195, 14}),
                    drawing::Line("0", {145, 5}, {145, 50})};
  return block;
}

drawing::EntitySpec TitleInsert() {
  return drawing::Insert(
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
       {.tag = "CHECKED", .value = "yes", .flags = drawing::kInvisible}},
      {}, kTitle);
}

// A gate of two or four metres: a dynamic block, and a block for each of its variations.
void AddGates(drawing::DrawingSpec& spec) {
  const drawing::AttributeSpec mark{.tag = "MARK", .prompt = "Mark of the gate?", .height = 0.8};
  const drawing::AttributeSpec maker{
      .tag = "MAKER", .value = "Example Gates", .flags = drawing::kConstant, .height = 0.4};
  spec.blocks.push_back(
      {.name = "GATE",
       .definitions = {mark, maker},
       .entities = {drawing::Line("0", {}, {2, 0}), drawing::Circle("0", {}, 0.1)},
       .isDynamic = true});
  for (const int width : {2, 4}) {
    spec.blocks.push_back({.name = "*U" + std::to_string(width),
                           .definitions = {mark, maker},
                           .entities = {drawing::Line("0", {}, {static_cast<double>(width), 0}),
                                        drawing::Circle("0", {}, 0.1)},
                           .copyOf = "GATE"});
  }
}

void AddBlocks(drawing::DrawingSpec& spec) {
  spec.blocks = {TitleBlock()};
  spec.blocks.push_back({.name = "TREE",
                         .definitions = {{.tag = "SPECIES", .prompt = "Species?", .height = 0.6},
                                         {.tag = "GIRTH", .prompt = "Girth in cm?", .height = 0.4}},
                         .entities = {drawing::Circle("0", {}, 1.8), drawing::Circle("0", {}, 0.2),
                                      drawing::Line("0", {-1.8, 0}, {1.8, 0})}});
  spec.blocks.push_back(
      {.name = "NORTH_ARROW",
       .entities = {drawing::Line("0", {0, -4}, {0, 4}), drawing::Circle("0", {}, 3),
                    drawing::Polyline("0", {{-1, 2}, {0, 4}, {1, 2}}),
                    drawing::Text("0", {-0.6, 4.6}, 1.6, "N")}});
  AddGates(spec);
  // The arrow that the settings name, without the underscore.
  spec.blocks.push_back(
      {.name = "_ArchTick", .entities = {drawing::Polyline("0", {{-0.5, -0.5}, {0.5, 0.5}})}});
  spec.blocks.push_back(drawing::XrefBlock("grading", ".\\grading.dxf"));
  spec.blocks.push_back(drawing::XrefBlock("survey", "survey-r2000.dxf", drawing::Xref::Overlaid));
}

void AddBuildings(std::vector<drawing::EntitySpec>& entities) {
  entities.push_back(drawing::Polyline(
      kBuilding, {{18, 34}, {46, 34}, {46, 46}, {38, 46}, {38, 58}, {18, 58}}, true));
  entities.back().handle = kHouseOutline;
  entities.push_back(drawing::Text(kNotes, {22, 45}, 1.6, "House A"));
  entities.back().handle = kHouseText;
  entities.push_back(drawing::Polyline(kBuilding, Rectangle({70, 38}, 22, 14), true));
  entities.back().handle = kWorkshopOutline;
  entities.push_back(drawing::Text(kNotes, {74, 44}, 1.6, "Workshop"));
  for (int window = 0; window < 10; ++window) {
    const double x = Millimetres(20 + window * 2.6);
    entities.push_back(drawing::Line(kBuilding, {x, 34}, {x, 34.3}));
  }
  Append(entities, WidthMark(kDimensions, {18, 31.5}, 28));
  Append(entities, WidthMark(kDimensions, {70, 35.5}, 22));
  Append(entities, WidthMark(kDimensions, {46, 31.5}, 24));
}

void AddRoads(std::vector<drawing::EntitySpec>& entities) {
  entities.push_back(drawing::Polyline(kRoad, {{0, 14}, {24, 14}, {30, 20}, {118, 22}}));
  entities.push_back(drawing::Polyline(kRoad, {{0, 20}, {21, 20}, {27, 26}, {117.5, 28}}));
  entities.push_back(drawing::Arc(kRoad, {24, 20}, 6, 270, 360));
  entities.push_back(drawing::Insert("*U4", {{.tag = "MARK", .value = "G1", .at = {0.5, 15}}},
                                     {.at = {0.5, 15}, .angle = 90}, kRoad));
  entities.push_back(drawing::Insert("*U2", {{.tag = "MARK", .value = "G2", .at = {96, 58}}},
                                     {.at = {96, 58}}, kRoad));
  for (int bay = 0; bay < 14; ++bay) {
    entities.push_back(drawing::Polyline(kCarPark, Rectangle({56 + bay * 2.5, 8}, 2.5, 5), true));
    entities.push_back(
        drawing::Text(kCarPark, {56.6 + bay * 2.5, 10}, 0.9, "P" + std::to_string(bay + 1)));
  }
}

void AddGround(std::vector<drawing::EntitySpec>& entities) {
  for (int halfMetres = 83; halfMetres < 97; ++halfMetres) {
    const std::vector<drawing::Point> line = Contour(halfMetres / 2.0, 3);
    if (line.size() > 1) entities.push_back(drawing::Polyline(kContour, line));
  }
  for (int x = 10; x < kPlotWidth; x += 15) {
    for (int y = 5; y < kPlotDepth - 5; y += 15) {
      const drawing::Point at{static_cast<double>(x), static_cast<double>(y)};
      entities.push_back(drawing::Dot(kHeights, at));
      entities.push_back(
          drawing::Text(kHeights, {at.x + 0.4, at.y + 0.3}, 0.7, HeightText(GroundHeight(at))));
    }
  }
}

void AddTrees(std::vector<drawing::EntitySpec>& entities) {
  static constexpr const char* kSpecies[] = {"Alder", "Birch", "Ελιά", "桜", "Field maple"};
  Scatter scatter(17);
  for (int i = 0; i < 44; ++i) {
    const drawing::Point at{scatter.Between(4, 90), scatter.Between(60, 74)};
    const auto girth = std::to_string(40 + static_cast<int>(scatter.Next() * 120));
    const auto kind = static_cast<std::size_t>(scatter.Next() * std::size(kSpecies));
    entities.push_back(drawing::Insert("TREE",
                                       {{.tag = "SPECIES", .value = kSpecies[kind], .at = at},
                                        {.tag = "GIRTH", .value = girth, .at = at}},
                                       {.at = at}, kPlants));
  }
}

void AddPaper(drawing::DrawingSpec& spec) {
  spec.layouts = {{"A1 site plan",
                   {TitleInsert(), drawing::Polyline(kTitle, Rectangle({5, 5}, 410, 287), true)},
                   "office-mono.ctb"},
                  {"A3 planting",
                   {drawing::Text(kTitle, {20, 20}, 5, "Planting schedule"),
                    drawing::Text(kNotes, {20, 12}, 3, "See drawing 017-L-102")},
                   "office-colour.ctb"}};
  spec.layouts[1].pageSetup = "A3 draft";
  spec.plotSettings = {"A1 final", "A3 draft"};
}

// Where the plot's corner lies, in the form that drawings of that version mostly have.
drawing::ObjectSpec Location(const std::string& version) {
  return drawing::GeoObject({.version = version < "AC1024"   ? 1
                                        : version < "AC1027" ? 2
                                                             : 3,
                             .coordinateType = 2,
                             .referencePoint = {512300.0, 6213450.0, 41.0},
                             .northX = 0.0523359562429438,
                             .northY = 0.9986295347545738,
                             .coordinateSystem = kCoordinateSystem,
                             .geoRss = "alder-court"});
}

void AddObjects(drawing::DrawingSpec& spec) {
  spec.groups = {{"HOUSE_A", "House with its name", {kHouseOutline, kHouseText}},
                 {"BUILDINGS", "Both outlines", {kHouseOutline, kWorkshopOutline}}};
  spec.mlineStyles = {"Standard", "WALL_300"};
  spec.rootEntries = {
      {"SITE_SCHEDULE", drawing::Dictionary({{"TREES", drawing::Xrecord({{1, "44"}, {40, 1.8}})},
                                             {"PARKING", drawing::Xrecord({{90, 14}})}})}};
  spec.classes = {{drawing::kGeoType, drawing::kGeoClass}};
  spec.modelExtension = {{drawing::kGeoKey, Location(spec.version)}};
  spec.images = {{.name = "site-photo",
                  .path = "site-photo.png",
                  .pixelsAcross = 160,
                  .pixelsUp = 96,
                  .at = {126, 0},
                  .width = 40,
                  .layer = kReferences}};
}

}  // namespace

drawing::DrawingSpec SitePlan(const std::string& version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  AddTables(spec);
  AddDescription(spec);
  AddBlocks(spec);
  spec.entities = {drawing::Polyline(kBoundary, PlotBoundary(), true),
                   drawing::Insert("NORTH_ARROW", {}, {.at = {112, 70}, .angle = 3}, kNotes),
                   drawing::Insert("grading", {}, {}, kReferences),
                   drawing::Insert("survey", {}, {}, kReferences)};
  AddBuildings(spec.entities);
  AddRoads(spec.entities);
  AddGround(spec.entities);
  AddTrees(spec.entities);
  AddPaper(spec);
  AddObjects(spec);
  return spec;
}

}  // namespace examples

// Writes a DWG drawing with a chosen number of entities, and beside it the list of what a reader
// must tell of it.

#include <exception>
#include <iostream>
#include <random>
#include <string>

#include "generate/Arguments.h"
#include "generate/PlanEntities.h"
#include "support/dwg/DwgMaker.h"

namespace {

constexpr int kNamedObjects = 300;
constexpr int kGroups = 40;

drawing::DrawingSpec Plan(const std::string& version, int entities) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.summary.title = "Large plan";
  spec.summary.author = "A. Drafter";
  spec.customProperties = {{"Project", "Measured"}};
  for (int i = 0; i < bench::kPlanLayers; ++i) spec.layers.emplace_back(bench::PlanLayer(i));
  for (int i = 0; i < kGroups; ++i) {
    spec.groups.emplace_back(("Group " + std::to_string(i)).c_str());
  }
  for (int i = 0; i < kNamedObjects; ++i) {
    spec.rootEntries.emplace_back("RECORD_" + std::to_string(i), drawing::Xrecord());
  }
  std::mt19937 random(1);
  spec.entities.reserve(static_cast<std::size_t>(entities));
  for (int i = 0; i < entities; ++i) spec.entities.push_back(bench::PlanEntity(i, random));
  return spec;
}

bench::Expected ExpectedOf(const drawing::DrawingSpec& spec) {
  bench::Expected expected = {{"2", spec.summary.title}, {"4", spec.summary.author}};
  for (const auto& entry : spec.customProperties) expected.emplace_back(entry.name, entry.value);
  for (const auto& layer : spec.layers) expected.emplace_back("Layer Name", layer.name);
  for (const auto& group : spec.groups) expected.emplace_back("Group Name", group.name);
  return expected;
}

}  // namespace

int main(int argc, char** argv) {
  int entities = 0;
  bench::Place place = bench::Place::ModelSpace;
  const bool isTitled = argc == 5 && bench::ReadPlace(argv[4], place);
  if ((argc != 4 && !isTitled) || !bench::ReadCount(argv[3], entities)) {
    std::cerr << "usage: generate_dwg FILE VERSION ENTITIES [titles | nested-titles]\n"
                 "Writes FILE, a drawing of the version (AC1032), and FILE.expected.  With titles\n"
                 "every tenth entity is a reference of the block TITLE, with attributes; nested\n"
                 "ones all stand in another block.\n";
    return 2;
  }
  try {
    const std::string path = argv[1];
    bench::TitledDrawing drawing;
    if (isTitled) {
      drawing = bench::MakeTitledDrawing(argv[2], entities, place);
    } else {
      drawing.spec = Plan(argv[2], entities);
      drawing.expected = ExpectedOf(drawing.spec);
    }
    bench::WriteBytes(path, dwg::Make(drawing.spec));
    bench::WriteExpected(path, drawing.expected);
  } catch (const std::exception& error) {
    std::cerr << "generate_dwg: " << error.what() << '\n';
    return 1;
  }
}

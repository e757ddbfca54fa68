#include "generate/TitledDrawing.h"

#include "generate/PlanEntities.h"

namespace bench {
namespace {

constexpr int kEntitiesToATitle = 10;
constexpr const char* kTitle = "TITLE";
constexpr const char* kSheet = "SHEET";

drawing::BlockSpec TitleBlock() {
  return {.name = kTitle,
          .definitions = {{.tag = "NUMBER", .prompt = "Number of the sheet?"},
                          {.tag = "SCALE", .value = "1:100", .flags = drawing::kConstant},
                          {.tag = "NAME", .prompt = "Name of the room?"}},
          .entities = {drawing::Line("0", {}, {100, 0}), drawing::Line("0", {100, 0}, {100, 30})}};
}

drawing::EntitySpec TitleReference(int number, std::mt19937& random) {
  const drawing::Point at = {static_cast<double>(random()) / 1e5,
                             static_cast<double>(random()) / 1e5};
  const std::string digits = std::to_string(number);
  return drawing::Insert(kTitle,
                         {{.tag = "NUMBER", .value = digits, .at = at},
                          {.tag = "NAME", .value = "Room " + digits, .at = at}},
                         {.at = at}, PlanLayer(number % kPlanLayers));
}

// Each value twice: in the set that was asked for and in the engine's own.  Constants come first.
Expected ExpectedOf(int firstTitle) {
  const std::string digits = std::to_string(firstTitle);
  Expected expected;
  for (const auto& [tag, value] :
       Expected{{"SCALE", "1:100"}, {"NUMBER", digits}, {"NAME", "Room " + digits}}) {
    expected.insert(expected.end(), 2, {tag, value});
  }
  return expected;
}

}  // namespace

TitledDrawing MakeTitledDrawing(const std::string& version, int entities, Place place) {
  TitledDrawing titled;
  drawing::DrawingSpec& spec = titled.spec;
  spec.version = version;
  spec.layers = {"0"};
  for (int i = 0; i < kPlanLayers; ++i) spec.layers.emplace_back(PlanLayer(i));
  spec.blocks = {TitleBlock()};
  if (place == Place::Block) {
    spec.blocks.push_back({.name = kSheet});
    spec.entities = {drawing::Insert(kSheet)};
  }
  std::vector<drawing::EntitySpec>& among =
      place == Place::Block ? spec.blocks.back().entities : spec.entities;
  among.reserve(static_cast<std::size_t>(entities));
  std::mt19937 random(1);
  for (int i = 1; i <= entities; ++i) {
    among.push_back(i % kEntitiesToATitle == 0 ? TitleReference(i, random) : PlanEntity(i, random));
  }
  titled.expected = ExpectedOf(kEntitiesToATitle);
  return titled;
}

}  // namespace bench

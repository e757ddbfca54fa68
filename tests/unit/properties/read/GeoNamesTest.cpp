// The words for types of coordinates and for units.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <map>

#include "properties/read/GeoNames.h"
#include "properties/read/GeoProperties.h"
#include "resources/ResourceModule.h"
#include "support/scripted/InFreshProcess.h"
#include "unit/properties/read/CollectorTest.h"
#include "unit/properties/read/Location.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::SizeIs;
using ZDXEngine::GetCoordinateTypeName;
using ZDXEngine::GetUnitName;

namespace {

constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kGreatest = std::numeric_limits<std::int32_t>::max();

class GeoNames : public scripted::ScriptedTest {
 protected:
  GeoNames() { location::GiveTexts(world); }
};

TEST_F(GeoNames, EveryTypeOfCoordinatesHasItsWord) {
  EXPECT_EQ(GetCoordinateTypeName(0), L"Unknown");
  EXPECT_EQ(GetCoordinateTypeName(1), L"Local");
  EXPECT_EQ(GetCoordinateTypeName(2), L"Grid");
  EXPECT_EQ(GetCoordinateTypeName(3), L"Geographic");
}

TEST_F(GeoNames, AnyOtherTypeHasAnEmptyText) {
  for (const std::int32_t type : {-1, 4, kLeast, kGreatest}) {
    EXPECT_EQ(GetCoordinateTypeName(type), L"") << type;
  }
}

TEST_F(GeoNames, EveryUnitHasItsWord) {
  const std::map<std::int32_t, std::wstring> words = {
      {0, L"Undefined Unit"}, {1, L"Inches"},      {2, L"Feet"},          {3, L"Miles"},
      {4, L"Millimeters"},    {5, L"Centimeters"}, {6, L"Meters"},        {7, L"Kilometers"},
      {8, L"MicroInches"},    {9, L"Miles"},       {10, L"Yards"},        {11, L"Angstroms"},
      {12, L"Nanometers"},    {13, L"Microns"},    {14, L"Decimeters"},   {15, L"Dekameters"},
      {16, L"Hectometers"},   {17, L"Gigameters"}, {18, L"Astronomical"}, {19, L"Lightyears"},
      {20, L"Parsecs"},       {24, L"Parsecs"}};
  for (const auto& [unit, word] : words) EXPECT_EQ(GetUnitName(unit), word) << unit;
}

TEST_F(GeoNames, AnyOtherUnitHasAnEmptyText) {
  for (const std::int32_t unit : {-1, 21, 22, 23, 25, kLeast, kGreatest}) {
    EXPECT_EQ(GetUnitName(unit), L"") << unit;
  }
}

// "LoadStrW(0, 119)".
std::vector<std::string> Loads(std::initializer_list<unsigned int> ids, const char* module = "0") {
  std::vector<std::string> calls;
  for (const unsigned int id : ids) {
    calls.push_back("LoadStrW(" + std::string(module) + ", " + std::to_string(id) + ")");
  }
  return calls;
}

TEST(GeoNamesOfAProcess, TypesAreLoadedInOrderFromTheEnginesModule) {
  const scripted::Afterlife after = scripted::InFreshProcess([](scripted::World&) {
    ZDXEngine::SetModuleHandle(reinterpret_cast<os::ModuleHandle>(77));
    GetCoordinateTypeName(0);
  });
  EXPECT_THAT(after.Calls({"LoadStrW"}), ElementsAreArray(Loads({119, 120, 121, 122}, "77")));
}

TEST(GeoNamesOfAProcess, UnitsAreLoadedInOrderAndMilsNever) {
  const scripted::Afterlife after =
      scripted::InFreshProcess([](scripted::World&) { GetUnitName(0); });
  EXPECT_THAT(after.Calls({"LoadStrW"}),
              ElementsAreArray(Loads({123, 124, 125, 126, 127, 128, 129, 130, 131, 126, 133,
                                      134, 135, 136, 137, 138, 139, 140, 141, 142, 143, 144})));
}

TEST(GeoNamesOfAProcess, TheWordsAreKeptWhateverBecomesOfTheTexts) {
  const scripted::Afterlife after = scripted::InFreshProcess([](scripted::World& world) {
    world.utilities.texts = {{121, L"grid then"}, {129, L"meters then"}};
    GetCoordinateTypeName(0);
    GetUnitName(0);
    world.ForgetCalls();
    world.utilities.texts = {{121, L"grid now"}, {129, L"meters now"}};
    world.Note(scripted::Shown(GetCoordinateTypeName(2)));
    world.Note(scripted::Shown(GetUnitName(6)));
    world.Note(std::to_string(world.Count("LoadStrW")));
  });
  EXPECT_THAT(after.Calls({"note"}),
              ElementsAre("note(grid then)", "note(meters then)", "note(0)"));
}

TEST(GeoNamesOfAProcess, TwoDrawingsReadOneAfterTheOtherGiveTheSameWordsLoadedOnce) {
  const scripted::Afterlife after = scripted::InFreshProcess([](scripted::World& world) {
    location::GiveTexts(world);
    world.drawing.location = location::Somewhere();
    for (int i = 0; i < 2; ++i) {
      ZnDbDatabase database(false, true);
      std::vector<ZDXEngine::_PropData> properties;
      ZDXEngine::CollectGeoProperties(properties, &database);
      world.Note(expected::Shown(properties.at(2)) + ", " + expected::Shown(properties.at(6)));
    }
  });
  EXPECT_THAT(after.Calls({"note"}),
              ElementsAre("note(coordinateType=Grid, horizontalUnits=Meters)",
                          "note(coordinateType=Grid, horizontalUnits=Meters)"));
  EXPECT_THAT(after.Calls({"LoadStrW"}), SizeIs(4 + 22));
}

}  // namespace

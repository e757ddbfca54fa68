// Where a drawing lies on the earth: of one location, written in every version of the object and
// form of file, and of real drawings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>

#include "ZDXEngine/Utf8.h"
#include "interface/Writings.h"
#include "support/Paths.h"
#include "support/PublicRead.h"
#include "support/Samples.h"
#include "support/Scratch.h"
#include "support/Sha256.h"
#include "support/drawing/GeoSpec.h"

namespace {

using nlohmann::json;
using testing::ElementsAre;

// All that is told of the location.
class Location {
 public:
  explicit Location(const std::wstring& path)
      : reading_(zdx_test::ReadFile(path, ZDXEngine::FilePropertyMgr::GeoLocation)) {}

  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& [name, value] : reading_.Records(zdx_test::kStorage)) names.push_back(name);
    return names;
  }

  std::string Text(const std::wstring& name) const {
    const std::vector<std::string> texts = reading_.Texts(name);
    return texts.size() == 1 ? texts[0] : "(" + std::to_string(texts.size()) + " records)";
  }

  double Number(const std::wstring& name) const { return Value(name, VT_R8).dblVal; }
  bool Flag(const std::wstring& name) const { return Value(name, VT_BOOL).boolVal != 0; }

  std::uint64_t WarningCount() const { return reading_.diagnostics.warningCount; }

 private:
  const VARIANT& Value(const std::wstring& name, VARTYPE type) const {
    static const VARIANT kNone = {};
    for (const ZDXEngine::_PropData& record : reading_.properties) {
      if (record.name != name) continue;
      EXPECT_EQ(record.value.vt, type);
      return record.value;
    }
    ADD_FAILURE() << "no " << ZDXEngine::Utf8FromWide(name);
    return kNone;
  }

  zdx_test::Reading reading_;
};

struct LocationForm {
  int objectVersion;
  const char* fileVersion;
};

constexpr LocationForm kLocationForms[] = {
    {1, "AC1021"}, {2, "AC1024"}, {3, "AC1027"}, {3, "AC1032"}};

std::string LongSystem() {
  std::string system = "<?xml version=\"1.0\"?>\n<Dictionary>";
  for (int i = 0; i < 60; ++i)
    system += "\n  <Axis uom=\"Mètre\" order=\"" + std::to_string(i) + "\"/>";
  return system + "\n</Dictionary>";
}

class LocationOfEveryVersion
    : public testing::TestWithParam<std::tuple<LocationForm, zdx_test::Writing>> {
 protected:
  bool IsFirst() const { return std::get<0>(GetParam()).objectVersion == 1; }

  Location Read() {
    const LocationForm& form = std::get<0>(GetParam());
    const zdx_test::Writing& writing = std::get<1>(GetParam());
    geo.version = form.objectVersion;
    drawing::DrawingSpec spec;
    spec.version = form.fileVersion;
    spec.modelExtension = {{drawing::kGeoKey, drawing::GeoObject(geo)}};
    const zdx_test::ScratchFile file(writing.make(spec), writing.Suffix());
    return Location(zdx_test::NameOf(file.path()));
  }

  drawing::GeoSpec geo = {.coordinateType = 2,
                          .designPoint = {1.5, 2.25, 3.0},
                          .referencePoint = {550100.5, 5801200.25, 30.0},
                          .horizontalUnitScale = 0.001,
                          .horizontalUnits = 4,
                          .verticalUnitScale = 0.3048,
                          .verticalUnits = 2,
                          .upDirection = {0.0, 0.6, 0.8},
                          .northX = -0.5,
                          .northY = std::sqrt(3.0) / 2,
                          .scaleFactor = 1.25,
                          .correctsSeaLevel = true,
                          .seaLevelElevation = 12.5,
                          .projectionRadius = 6371000.0,
                          .coordinateSystem = LongSystem(),
                          .geoRss = "<georss:point>1 2</georss:point>",
                          .observationFrom = "from",
                          .observationTo = "to",
                          .observationCoverage = "all"};
};

TEST_P(LocationOfEveryVersion, HasAllItsPropertiesInOrder) {
  const Location location = Read();
  EXPECT_EQ(location.WarningCount(), 0u);
  EXPECT_THAT(
      location.Names(),
      ElementsAre("CoordinateProjectionRadius", "CoordinateSystem", "coordinateType", "designPoint",
                  "doSeaLevelCorrection", "GeoRSS", "horizontalUnits", "horizontalUnitScale",
                  "northDirection", "northDirectionVector", "observationCoverage",
                  "observationFrom", "observationTo", "referencePoint", "scaleFactor",
                  "seaLevelElevation", "upDirection", "verticalUnits", "verticalUnitScale"));
}

TEST_P(LocationOfEveryVersion, TellsItsPlaceAndItsTexts) {
  const Location location = Read();
  EXPECT_EQ(location.Text(L"coordinateType"), "Grid");
  EXPECT_EQ(location.Text(L"designPoint"), "(1.500000, 2.250000 , 3.000000)");
  EXPECT_EQ(location.Text(L"referencePoint"), "(550100.500000, 5801200.250000 , 30.000000)");
  EXPECT_EQ(location.Text(L"upDirection"), "(0.000000, 0.600000 , 0.800000)");
  EXPECT_EQ(location.Text(L"CoordinateSystem"), LongSystem());
  EXPECT_EQ(location.Text(L"GeoRSS"), "<georss:point>1 2</georss:point>");
  EXPECT_EQ(location.Text(L"observationFrom"), "from");
  EXPECT_EQ(location.Text(L"observationTo"), "to");
  EXPECT_EQ(location.Text(L"observationCoverage"), "all");
}

// Against the clock from the y axis.
TEST_P(LocationOfEveryVersion, TellsTheNorthBothWays) {
  const Location location = Read();
  EXPECT_NEAR(location.Number(L"northDirection"), std::acos(-1.0) / 6, 1e-12);
  EXPECT_EQ(location.Text(L"northDirectionVector"), "(-0.500000, 0.866025 , 0.000000)");
}

// What is left of a vector's rounding isn't told as an angle.
TEST_P(LocationOfEveryVersion, TellsAnUnturnedNorthAsThat) {
  geo.northX = 2e-16;
  geo.northY = 1.0;
  const Location location = Read();
  EXPECT_NEAR(location.Number(L"northDirection"), 0.0, IsFirst() ? 1e-15 : 0.0);
  EXPECT_EQ(location.Text(L"northDirectionVector"), "(0.000000, 1.000000 , 0.000000)");
}

TEST_P(LocationOfEveryVersion, TellsItsUnitsAndScalesAsFarAsItKeepsThem) {
  const Location location = Read();
  EXPECT_EQ(location.Text(L"horizontalUnits"), "Millimeters");
  EXPECT_EQ(location.Number(L"horizontalUnitScale"), 0.001);
  EXPECT_EQ(location.Text(L"verticalUnits"), IsFirst() ? "Undefined Unit" : "Feet");
  EXPECT_EQ(location.Number(L"verticalUnitScale"), IsFirst() ? 1.0 : 0.3048);
  EXPECT_EQ(location.Number(L"scaleFactor"), IsFirst() ? 1.0 : 1.25);
  EXPECT_EQ(location.Flag(L"doSeaLevelCorrection"), !IsFirst());
  EXPECT_EQ(location.Number(L"seaLevelElevation"), IsFirst() ? 0.0 : 12.5);
  EXPECT_EQ(location.Number(L"CoordinateProjectionRadius"), IsFirst() ? 0.0 : 6371000.0);
}

TEST_P(LocationOfEveryVersion, TellsTextsThatAreEmpty) {
  geo.coordinateSystem = geo.geoRss = geo.observationFrom = "";
  geo.observationTo = geo.observationCoverage = "";
  const Location location = Read();
  EXPECT_EQ(location.Names().size(), 19u);
  EXPECT_EQ(location.Text(L"CoordinateSystem"), "");
  EXPECT_EQ(location.Text(L"GeoRSS"), "");
}

std::string LocationTestName(
    const testing::TestParamInfo<std::tuple<LocationForm, zdx_test::Writing>>& info) {
  const LocationForm& form = std::get<0>(info.param);
  return "Object" + std::to_string(form.objectVersion) + "In" + form.fileVersion +
         std::get<1>(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(Dxf, LocationOfEveryVersion,
                         testing::Combine(testing::ValuesIn(kLocationForms),
                                          testing::ValuesIn(zdx_test::kDxfWritings)),
                         LocationTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, LocationOfEveryVersion,
                         testing::Combine(testing::ValuesIn(kLocationForms),
                                          testing::ValuesIn(zdx_test::kDwgWritings)),
                         LocationTestName);

class SampleLocations : public testing::TestWithParam<std::string> {
 protected:
  SampleLocations()
      : location(zdx_test::NameOf(zdx_test::SampleFolder() / GetParam())), truth([this] {
          json all;
          std::ifstream(zdx_test::TruthOf(GetParam())) >> all;
          return all["geodata"];
        }()) {}

  static std::string Point(const json& numbers) {
    char text[260];
    std::snprintf(text, sizeof text, "(%.6f, %.6f , %.6f)", numbers[0].get<double>(),
                  numbers[1].get<double>(), numbers.size() > 2 ? numbers[2].get<double>() : 0.0);
    return text;
  }

  Location location;
  json truth;
};

TEST_P(SampleLocations, AreThoseOfTheTruth) {
  if (truth.is_null()) {
    EXPECT_THAT(location.Names(), testing::IsEmpty());
    return;
  }
  // Their words for the numbers that the samples have.
  const std::map<int, std::string> types = {{1, "Local"}, {2, "Grid"}, {3, "Geographic"}};
  const std::map<int, std::string> units = {{1, "Inches"}, {2, "Feet"}, {6, "Meters"}};
  EXPECT_EQ(location.Text(L"coordinateType"), types.at(truth["coordinateType"]));
  EXPECT_EQ(location.Text(L"horizontalUnits"), units.at(truth["horizontalUnits"]));
  EXPECT_EQ(location.Text(L"verticalUnits"), units.at(truth["verticalUnits"]));
  for (const char* const name :
       {"designPoint", "referencePoint", "upDirection", "northDirectionVector"}) {
    EXPECT_EQ(location.Text(ZDXEngine::WideFromUtf8(name)), Point(truth[name])) << name;
  }
  const std::pair<const wchar_t*, const char*> numbers[] = {
      {L"horizontalUnitScale", "horizontalUnitScale"},
      {L"verticalUnitScale", "verticalUnitScale"},
      {L"scaleFactor", "userScaleFactor"},
      {L"seaLevelElevation", "seaLevelElevation"},
      {L"CoordinateProjectionRadius", "coordinateProjectionRadius"}};
  for (const auto& [name, key] : numbers) EXPECT_EQ(location.Number(name), truth[key]) << key;
  EXPECT_EQ(location.Flag(L"doSeaLevelCorrection"), truth["doSeaLevelCorrection"] != 0);
  EXPECT_EQ(location.Text(L"GeoRSS"), truth["geoRSS"]);
  for (const char* const name : {"observationFrom", "observationTo", "observationCoverage"}) {
    EXPECT_EQ(location.Text(ZDXEngine::WideFromUtf8(name)), truth[name]) << name;
  }
}

TEST_P(SampleLocations, TellTheirCoordinateSystemInFull) {
  if (truth.is_null()) return;
  const std::string system = location.Text(L"CoordinateSystem");
  EXPECT_EQ(system.substr(0, 56),
            truth["coordinateSystem"]["start"].get<std::string>().substr(0, 56));
  EXPECT_EQ(ZDXEngine::WideFromUtf8(system).size(), truth["coordinateSystem"]["characters"]);
  EXPECT_EQ(zdx_test::Sha256(system), truth["coordinateSystem"]["sha256_utf8"]);
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleLocations);
INSTANTIATE_TEST_SUITE_P(Dxf, SampleLocations, testing::ValuesIn(zdx_test::SampleNames(".dxf")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });
INSTANTIATE_TEST_SUITE_P(Dwg, SampleLocations, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

}  // namespace

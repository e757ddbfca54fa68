// Where a drawing lies on the earth.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <locale>
#include <stdexcept>

#include "properties/read/GeoProperties.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/CollectorTest.h"
#include "unit/properties/read/Location.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using ZDXEngine::CollectGeoProperties;

namespace {

class GeoProperties : public scripted::CollectorTest {
 protected:
  GeoProperties() {
    location::GiveTexts(world);
    world.drawing.location = location::Somewhere();
  }
  std::vector<std::string> Listed() { return Collected(CollectGeoProperties); }
  // What the property `name` holds.
  const VARIANT& Value(const std::wstring& name) {
    properties.clear();
    CollectGeoProperties(properties, &database);
    for (const ZDXEngine::_PropData& property : properties) {
      if (property.name == name) return property.value;
    }
    throw std::out_of_range("no such property");
  }
  std::wstring Text(const std::wstring& name) { return Value(name).bstrVal; }
  scripted::Location& Location() { return *world.drawing.location; }
};

TEST_F(GeoProperties, TheNineteenComeUnderTheirNamesInTheirOrder) {
  CollectGeoProperties(properties, &database);
  std::vector<std::wstring> names;
  for (const auto& property : properties) names.push_back(property.name);
  EXPECT_THAT(names,
              ElementsAre(L"CoordinateProjectionRadius", L"CoordinateSystem", L"coordinateType",
                          L"designPoint", L"doSeaLevelCorrection", L"GeoRSS", L"horizontalUnits",
                          L"horizontalUnitScale", L"northDirection", L"northDirectionVector",
                          L"observationCoverage", L"observationFrom", L"observationTo",
                          L"referencePoint", L"scaleFactor", L"seaLevelElevation", L"upDirection",
                          L"verticalUnits", L"verticalUnitScale"));
}

TEST_F(GeoProperties, AllAreOfTheEnginesSet) {
  CollectGeoProperties(properties, &database);
  ASSERT_THAT(properties, SizeIs(19));
  for (const auto& property : properties) EXPECT_EQ(property.formatId, expected::kStorageSet);
}

TEST_F(GeoProperties, NumbersAreNumbers) {
  const std::pair<const wchar_t*, double> numbers[] = {{L"CoordinateProjectionRadius", 6378137},
                                                       {L"horizontalUnitScale", 1.5},
                                                       {L"northDirection", 0.25},
                                                       {L"scaleFactor", 3.5},
                                                       {L"seaLevelElevation", 4.5},
                                                       {L"verticalUnitScale", 2.5}};
  for (const auto& [name, number] : numbers) {
    EXPECT_EQ(Value(name).vt, VT_R8) << scripted::Shown(name);
    EXPECT_EQ(Value(name).dblVal, number) << scripted::Shown(name);
  }
}

TEST_F(GeoProperties, TextsAreTexts) {
  const std::pair<const wchar_t*, const wchar_t*> texts[] = {
      {L"CoordinateSystem", L"<xml/>"},
      {L"coordinateType", L"Grid"},
      {L"designPoint", L"(1.000000, 2.000000 , 3.000000)"},
      {L"GeoRSS", L"tag"},
      {L"horizontalUnits", L"Meters"},
      {L"northDirectionVector", L"(0.600000, 0.800000 , 0.000000)"},
      {L"observationCoverage", L"coverage"},
      {L"observationFrom", L"from"},
      {L"observationTo", L"to"},
      {L"referencePoint", L"(-4.500000, 5.250000 , 0.125000)"},
      {L"upDirection", L"(0.000000, 0.500000 , 1.000000)"},
      {L"verticalUnits", L"Feet"}};
  for (const auto& [name, text] : texts) {
    ASSERT_EQ(Value(name).vt, VT_BSTR) << scripted::Shown(name);
    EXPECT_EQ(Text(name), text) << scripted::Shown(name);
  }
}

TEST_F(GeoProperties, TheTypeCodesTellFlagNumberAndText) {
  CollectGeoProperties(properties, &database);
  for (const auto& property : properties) {
    const std::int32_t wanted = property.value.vt == VT_BOOL ? 0
                                : property.value.vt == VT_R8 ? 1
                                                             : 2;
    EXPECT_EQ(property.typeCode, wanted) << scripted::Shown(property.name);
  }
}

TEST_F(GeoProperties, ATrueFlagHasAllBitsSetAndAFalseOneNone) {
  EXPECT_EQ(Value(L"doSeaLevelCorrection").vt, VT_BOOL);
  EXPECT_EQ(Value(L"doSeaLevelCorrection").boolVal, -1);
  Location().doSeaLevelCorrection = false;
  EXPECT_EQ(Value(L"doSeaLevelCorrection").boolVal, 0);
}

TEST_F(GeoProperties, ANumberWithoutAWordGivesAnEmptyText) {
  Location().coordinateType = 4;
  Location().horizontalUnits = 21;
  Location().verticalUnits = -1;
  EXPECT_EQ(Text(L"coordinateType"), L"");
  EXPECT_EQ(Text(L"horizontalUnits"), L"");
  EXPECT_EQ(Text(L"verticalUnits"), L"");
}

TEST_F(GeoProperties, EachTextThatIsNullGivesItsPropertyAllTheSame) {
  const std::pair<std::optional<std::wstring> scripted::Location::*, const char*> texts[] = {
      {&scripted::Location::coordinateSystem, "CoordinateSystem=(null)"},
      {&scripted::Location::geoRSSTag, "GeoRSS=(null)"},
      {&scripted::Location::observationCoverage, "observationCoverage=(null)"},
      {&scripted::Location::observationFrom, "observationFrom=(null)"},
      {&scripted::Location::observationTo, "observationTo=(null)"}};
  for (const auto& [text, shown] : texts) {
    properties.clear();
    Location() = location::Somewhere();
    Location().*text = std::nullopt;
    const std::vector<std::string> listed = Listed();
    EXPECT_THAT(listed, SizeIs(19)) << shown;
    EXPECT_THAT(listed, Contains(shown));
  }
}

TEST_F(GeoProperties, AnEmptyTextIsAnEmptyText) {
  Location().geoRSSTag = L"";
  EXPECT_THAT(Listed(), Contains("GeoRSS="));
}

TEST_F(GeoProperties, DecimalsAreRoundedToSix) {
  Location().designPoint = {0.0000004, 0.0000006, -123456.7890125};
  EXPECT_EQ(Text(L"designPoint"), L"(0.000000, 0.000001 , -123456.789012)");
}

class CommaForPoint : public std::numpunct<wchar_t> {
  wchar_t do_decimal_point() const override { return L','; }
};

TEST_F(GeoProperties, FormattedNumbersHaveAPointInEveryLocale) {
  const std::locale before =
      std::locale::global(std::locale(std::locale::classic(), new CommaForPoint));
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "German_Germany.1252"}) {
    std::setlocale(LC_NUMERIC, name);
  }
  const std::wstring text = Text(L"designPoint");
  std::setlocale(LC_NUMERIC, "C");
  std::locale::global(before);
  EXPECT_EQ(text, L"(1.000000, 2.000000 , 3.000000)");
}

TEST_F(GeoProperties, AFormattedTextIsCutAt259Characters) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  Location().designPoint = {-kGreatest, kGreatest, kGreatest};
  const std::wstring text = Text(L"designPoint");
  EXPECT_EQ(text.size(), 259U);
  EXPECT_EQ(text.substr(0, 12), L"(-1797693134");
  Location().designPoint = {1e240, 2, 3};
  EXPECT_EQ(Text(L"designPoint").size(), 259U);
  Location().designPoint = {1e200, 2, 3};
  EXPECT_TRUE(Text(L"designPoint").ends_with(L".000000, 2.000000 , 3.000000)"));
}

TEST_F(GeoProperties, NumbersThatAreNoneDoNoHarm) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Location().designPoint = {kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()};
  EXPECT_EQ(Text(L"designPoint"), L"(inf, -inf , nan)");
}

TEST_F(GeoProperties, TheObjectIsAskedForOpenedForReadReadInOrderAndClosed) {
  Listed();
  std::vector<std::string> calls = world.Calls();
  std::erase_if(calls, [](const std::string& call) {
    return !call.starts_with("location.") && !call.starts_with("zndb");
  });
  EXPECT_THAT(
      calls,
      ElementsAre(
          "zndbGetGeoDataObjId(database 1)", "zndbOpenObject(location, ZnDbGeoData, 0, false)",
          "location.coordinateProjectionRadius()", "location.coordinateSystem()",
          "location.coordinateType()", "location.designPoint()", "location.doSeaLevelCorrection()",
          "location.geoRSSTag()", "location.horizontalUnits()", "location.horizontalUnitScale()",
          "location.northDirection()", "location.northDirectionVector()",
          "location.observationCoverage()", "location.observationFrom()",
          "location.observationTo()", "location.referencePoint()", "location.scaleFactor()",
          "location.seaLevelElevation()", "location.upDirection()", "location.verticalUnits()",
          "location.verticalUnitScale()", "location.objectId()", "location.close()"));
}

TEST_F(GeoProperties, AnObjectWithoutAnIdIsDeleted) {
  Location().inDatabase = false;
  EXPECT_THAT(Listed(), SizeIs(19));
  EXPECT_THAT(world.Calls({"close", "delete"}), ElementsAre("location.delete()"));
}

TEST_F(GeoProperties, ADrawingThatLiesNowhereGivesNothing) {
  world.drawing.location = std::nullopt;
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_THAT(world.Calls({"zndbOpenObject"}), IsEmpty());
}

TEST_F(GeoProperties, AFailureToTellTheObjectMeansThatThereIsNone) {
  world.Fail("zndbGetGeoDataObjId", 5);
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_THAT(world.Calls({"zndbOpenObject"}), IsEmpty());
}

TEST_F(GeoProperties, AnObjectThatDoesNotOpenGivesNothing) {
  world.Fail("zndbOpenObject", 5);
  EXPECT_THAT(Listed(), IsEmpty());
  EXPECT_THAT(world.Calls({"objectId", "close", "delete"}), IsEmpty());
}

TEST_F(GeoProperties, WhatIsInTheListAlreadyStays) {
  properties.emplace_back().name = L"before";
  CollectGeoProperties(properties, &database);
  ASSERT_THAT(properties, SizeIs(20));
  EXPECT_EQ(properties.front().name, L"before");
}

TEST(GeoPropertiesWithoutMemory, RaiseTheComErrorAndLeakNothing) {
  for (const bool inDatabase : {true, false}) {
    outages::FailEachAllocation(
        [=](scripted::World& world) {
          location::GiveTexts(world);
          world.drawing.location = location::Somewhere();
          world.drawing.location->inDatabase = inDatabase;
        },
        [] {
          ZnDbDatabase database(false, true);
          std::vector<ZDXEngine::_PropData> properties;
          CollectGeoProperties(properties, &database);
        });
  }
}

}  // namespace

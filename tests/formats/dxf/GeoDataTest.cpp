// The location object, in its three versions.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"

namespace {

using namespace handmade_dxf;
using testing::ElementsAre;
using zdx::model::GeoData;

Tags GeoObject(const Tags& values) {
  return Join({{{0, "GEODATA"},
                {5, "71"},
                {102, "{REACTORS"},
                {330, "70"},
                {102, "}"},
                {330, "70"},
                {100, drawing::kGeoClass}},
               values});
}

Contents WithLocation(const Tags& object, const std::string& version = "AC1027") {
  return {.version = version,
          .records = Join({Record("1", "*Model_Space", Extension("70")),
                           Record("2", "*Paper_Space", Extension("72"))}),
          .objects = Join({Dictionary("70", drawing::kGeoKey, "71"), object})};
}

std::optional<GeoData> ReadLocation(const std::string& bytes) {
  OpenDrawing drawing(bytes);
  const auto object = drawing->GeoDataObject();
  return object ? drawing->ReadGeoData(*object) : std::nullopt;
}

const Tags kLater = {{330, "1"},   {70, 2},         {10, 1.5},   {20, 2.5},    {30, 3.5},
                     {11, 10.25},  {21, 20.25},     {31, 30.25}, {40, 0.3048}, {91, 2},
                     {41, 0.0254}, {92, 1},         {210, 0.1},  {220, 0.2},   {230, 0.9},
                     {12, 1.0},    {22, 0.0},       {95, 1},     {141, 1.25},  {294, 1},
                     {142, 12.5},  {143, 6378137.0}};
const Tags kLaterTexts = {{303, "<Dictionary>\n"}, {303, "  <Name>M</"}, {301, "Name>\n"},
                          {302, "<point>"},        {305, "from"},        {306, "to"},
                          {307, "cover"}};
// The points of a mesh.
const Tags kMesh = {{93, 1}, {13, 7.0}, {23, 7.0}, {14, 7.0}, {24, 7.0}, {96, 0}};

class DxfLocation : public testing::TestWithParam<std::tuple<int, dxf::Form>> {};

TEST_P(DxfLocation, OfTheLaterVersionsTellsItsValues) {
  const auto& [version, form] = GetParam();
  const auto geo = ReadLocation(
      BytesOf(WithLocation(GeoObject(Join({{{90, version}}, kLater, kLaterTexts, kMesh}))), form));
  ASSERT_TRUE(geo);
  EXPECT_EQ(geo->coordinateType, 2);
  EXPECT_THAT(geo->designPoint, ElementsAre(1.5, 2.5, 3.5));
  EXPECT_THAT(geo->referencePoint, ElementsAre(10.25, 20.25, 30.25));
  EXPECT_THAT(geo->upDirection, ElementsAre(0.1, 0.2, 0.9));
  EXPECT_EQ(geo->horizontalUnitScale, 0.3048);
  EXPECT_EQ(geo->horizontalUnits, 2);
  EXPECT_EQ(geo->verticalUnitScale, 0.0254);
  EXPECT_EQ(geo->verticalUnits, 1);
  EXPECT_THAT(geo->northVector, ElementsAre(1.0, 0.0));
  EXPECT_DOUBLE_EQ(geo->northAngle, -std::numbers::pi / 2);
  EXPECT_EQ(geo->scaleFactor, 1.25);
  EXPECT_TRUE(geo->correctsSeaLevel);
  EXPECT_EQ(geo->seaLevelElevation, 12.5);
  EXPECT_EQ(geo->projectionRadius, 6378137.0);
  EXPECT_EQ(geo->coordinateSystem, L"<Dictionary>\n  <Name>M</Name>\n");
  EXPECT_EQ(geo->geoRssTag, L"<point>");
  EXPECT_EQ(geo->observationFrom, L"from");
  EXPECT_EQ(geo->observationTo, L"to");
  EXPECT_EQ(geo->observationCoverage, L"cover");
}

INSTANTIATE_TEST_SUITE_P(VersionsAndForms, DxfLocation,
                         testing::Combine(testing::Values(2, 3),
                                          testing::Values(dxf::Form::Ascii, dxf::Form::Binary)),
                         [](const auto& test) {
                           const bool isText = std::get<1>(test.param) == dxf::Form::Ascii;
                           return (isText ? "Text" : "Binary") +
                                  std::to_string(std::get<0>(test.param));
                         });

TEST(DxfLocationFirst, HasItsPlaceByNorthAndEastAndAnAngle) {
  const Tags values = {{90, 1},       {70, 3},      {330, "1"},     {40, 55.5},     {41, -4.25},
                       {42, 9.0},     {91, 6},      {10, 1.0},      {20, 2.0},      {30, 3.0},
                       {11, 7.0},     {21, 7.0},    {31, 7.0},      {210, 0.0},     {220, 0.0},
                       {230, 1.0},    {52, 90.0},   {43, 7.0},      {44, 7.0},      {45, 7.0},
                       {301, "WKT"},  {302, "tag"}, {46, 0.5},      {303, "datum"}, {304, "old"},
                       {305, "from"}, {306, "to"},  {307, "cover"}, {93, 0},        {96, 0},
                       {3, "begin"},  {40, 8.0},    {52, 8.0},      {4, "end"}};
  for (const dxf::Form form : {dxf::Form::Ascii, dxf::Form::Binary}) {
    const auto geo = ReadLocation(BytesOf(WithLocation(GeoObject(values), "AC1021"), form));
    ASSERT_TRUE(geo);
    EXPECT_EQ(geo->coordinateType, 3);
    EXPECT_THAT(geo->referencePoint, ElementsAre(-4.25, 55.5, 9.0));
    EXPECT_THAT(geo->designPoint, ElementsAre(1.0, 2.0, 3.0));
    EXPECT_EQ(geo->horizontalUnits, 6);
    EXPECT_EQ(geo->horizontalUnitScale, 0.5);
    EXPECT_DOUBLE_EQ(geo->northAngle, std::numbers::pi / 2);
    EXPECT_EQ(geo->coordinateSystem, L"WKT");
    EXPECT_EQ(geo->geoRssTag, L"tag");
    EXPECT_EQ(geo->observationCoverage, L"cover");
    EXPECT_EQ(geo->verticalUnits, 0);
    EXPECT_EQ(geo->scaleFactor, 1.0);
  }
}

TEST(DxfLocationObject, IsNoneWithoutTheEntryOfModelSpace) {
  const Tags object = GeoObject(Join({{{90, 3}}, kLater}));
  EXPECT_TRUE(OpenDrawing(BytesOf(WithLocation(object)))->GeoDataObject());
  Contents onPaper = WithLocation(object);
  onPaper.objects = Join({Dictionary("72", drawing::kGeoKey, "71"), object});
  EXPECT_FALSE(OpenDrawing(BytesOf(onPaper))->GeoDataObject());
  Contents another = WithLocation(object);
  another.objects = Join({Dictionary("70", "OTHER", "71"), object});
  EXPECT_FALSE(OpenDrawing(BytesOf(another))->GeoDataObject());
  EXPECT_FALSE(OpenDrawing(BytesOf(WithLocation({{0, "XRECORD"}, {5, "71"}})))->GeoDataObject());
  EXPECT_FALSE(OpenDrawing(BytesOf({.version = "AC1009"}))->GeoDataObject());
}

TEST(DxfLocationObject, LeavesOutTextsAsEmptyOnes) {
  const auto geo = ReadLocation(BytesOf(WithLocation(GeoObject(Join({{{90, 3}}, kLater})))));
  ASSERT_TRUE(geo);
  EXPECT_EQ(geo->coordinateSystem, L"");
  EXPECT_EQ(geo->observationCoverage, L"");
}

TEST(DxfLocationObject, WithoutAVersionIsNotRead) {
  OpenDrawing drawing(BytesOf(WithLocation(GeoObject(kLater))));
  EXPECT_EQ(drawing->ReadGeoData(*drawing->GeoDataObject()), std::nullopt);
  EXPECT_EQ(drawing.report().warningCount, 1u);
}

std::string DamagedBehind(const std::string& line) {
  std::string text =
      BytesOf(WithLocation(GeoObject(Join({{{90, 3}}, kLater, kLaterTexts, kMesh}))));
  return text.insert(text.find(line) + line.size(), "rubbish\n");
}

TEST(DamagedDxfLocation, IsReadOnlyIfAllItsValuesAreThere) {
  EXPECT_EQ(ReadLocation(DamagedBehind("6378137.0\n")), std::nullopt);
  EXPECT_EQ(ReadLocation(DamagedBehind("<point>\n")), std::nullopt);
  const auto geo = ReadLocation(DamagedBehind("cover\n"));
  ASSERT_TRUE(geo);
  EXPECT_EQ(geo->observationCoverage, L"cover");
}

TEST(DamagedDxfLocation, HasTheDefaultOfAValueThatIsNoNumber) {
  std::string text = BytesOf(WithLocation(GeoObject(Join({{{90, 3}}, kLater, kLaterTexts}))));
  for (const char* const number : {"rubbish", "nan", "inf", "1e999", ""}) {
    std::string changed = text;
    changed.replace(changed.find("1.25\n"), 4, number);
    OpenDrawing drawing(changed);
    const auto geo = drawing->ReadGeoData(*drawing->GeoDataObject());
    ASSERT_TRUE(geo);
    EXPECT_EQ(geo->scaleFactor, 1.0) << number;
    EXPECT_EQ(geo->seaLevelElevation, 12.5) << number;
    EXPECT_EQ(drawing.report().warningCount, 1u) << number;
  }
}

}  // namespace

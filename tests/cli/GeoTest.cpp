// Where a drawing lies on the earth.
#include <gmock/gmock.h>

#include "cli/CliTest.h"
#include "support/drawing/DrawingSpec.h"
#include "support/drawing/GeoSpec.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

drawing::DrawingSpec LocatedDrawing() {
  drawing::DrawingSpec spec;
  spec.classes = {{drawing::kGeoType, drawing::kGeoClass}};
  spec.modelExtension = {
      {drawing::kGeoKey,
       drawing::GeoObject({.coordinateType = 2,
                           .designPoint = {1, 2, 3},
                           .referencePoint = {512300.5, -6213450, 0.25},
                           .horizontalUnitScale = 0.3048,
                           .horizontalUnits = 2,
                           .correctsSeaLevel = true,
                           .seaLevelElevation = 0.1,
                           .projectionRadius = 6371000,
                           .coordinateSystem = "<Grid>\n  <Name>17</Name>\n</Grid>",
                           .geoRss = "plot"})}};
  return spec;
}

constexpr const char* kLocationText =
    "\n  Geographic location\n"
    "    CoordinateProjectionRadius  6371000\n"
    "    CoordinateSystem            <Grid>\n"
    "                                  <Name>17</Name>\n"
    "                                </Grid>\n"
    "    coordinateType              Grid\n"
    "    designPoint                 (1.000000, 2.000000 , 3.000000)\n"
    "    doSeaLevelCorrection        yes\n"
    "    GeoRSS                      plot\n"
    "    horizontalUnits             Feet\n"
    "    horizontalUnitScale         0.3048\n"
    "    northDirection              0\n"
    "    northDirectionVector        (0.000000, 1.000000 , 0.000000)\n"
    "    observationCoverage         (empty)\n"
    "    observationFrom             (empty)\n"
    "    observationTo               (empty)\n"
    "    referencePoint              (512300.500000, -6213450.000000 , 0.250000)\n"
    "    scaleFactor                 1\n"
    "    seaLevelElevation           0.1\n"
    "    upDirection                 (0.000000, 0.000000 , 1.000000)\n"
    "    verticalUnits               Meters\n"
    "    verticalUnitScale           1\n";

class Location : public CliTest {
 protected:
  Location() {
    Write("plan.dxf", dxf::Make(LocatedDrawing()));
    Write("plan.dwg", dwg::Make(LocatedDrawing()));
  }
};

TEST_F(Location, IsAGroupWithItsLongTextInLines) {
  EXPECT_EQ(Zdx({"info", "--select", "geo", "plan.dxf"}).out,
            "plan.dxf\n  Zent drawing, DXF (text), AC1032, code page ANSI_1252\n" +
                std::string(kLocationText));
  EXPECT_EQ(
      Zdx({"info", "--select", "geo", "plan.dwg"}).out,
      "plan.dwg\n  Zent drawing, DWG, AC1032, code page ANSI_1252\n" + std::string(kLocationText));
}

TEST_F(Location, IsInJsonWithNumbersAndAFlag) {
  const auto documents = Documents(Zdx({"info", "-o", "json", "--select", "geo", "plan.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  const nlohmann::json& properties = documents[0].at("properties");
  ASSERT_THAT(properties, SizeIs(19));
  for (const nlohmann::json& property : properties) {
    EXPECT_EQ(property.at("formatId"), "{B725F130-47EF-101A-A5F1-02608C9EEBAC}");
  }
  EXPECT_EQ(properties[0].at("name"), "CoordinateProjectionRadius");
  EXPECT_EQ(properties[0].at("typeCode"), 1);
  EXPECT_EQ(properties[0].at("value"), 6371000.0);
  EXPECT_EQ(properties[1].at("value"), "<Grid>\n  <Name>17</Name>\n</Grid>");
  EXPECT_EQ(properties[4].at("name"), "doSeaLevelCorrection");
  EXPECT_EQ(properties[4].at("typeCode"), 0);
  EXPECT_EQ(properties[4].at("value"), true);
}

TEST_F(Location, ThatIsNotThereIsNotTold) {
  Write("plan.dxf", dxf::Make({}));
  const auto documents = Documents(Zdx({"info", "-o", "json", "--select", "geo", "plan.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_THAT(documents[0].at("properties"), IsEmpty());
}

TEST_F(Location, IsGivenRaw) {
  const auto got = [&](const char* key) { return Zdx({"get", key, "plan.dxf"}).out; };
  EXPECT_EQ(got("geo:designPoint"), "(1.000000, 2.000000 , 3.000000)\n");
  EXPECT_EQ(got("geo:horizontalUnitScale"), "0.3048\n");
  EXPECT_EQ(got("geo:seaLevelElevation"), "0.1\n");
  EXPECT_EQ(got("geo:DOSEALEVELCORRECTION"), "true\n");
  EXPECT_EQ(got("geo:observationFrom"), "\n");
  EXPECT_EQ(got("geo:CoordinateSystem"), "<Grid>\n  <Name>17</Name>\n</Grid>\n");
}

}  // namespace

}  // namespace zdx_test

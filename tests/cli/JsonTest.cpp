#include <gmock/gmock.h>

#include <algorithm>

#include "cli/CliTest.h"
#include "cli/SmallDrawing.h"

namespace zdx_test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

constexpr const char* kSummarySet = "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}";
constexpr const char* kCustomSet = "{D5CDD505-2E9C-101B-9397-08002B2CF9AE}";
constexpr const char* kStorageSet = "{B725F130-47EF-101A-A5F1-02608C9EEBAC}";

class Json : public CliTest {
 protected:
  nlohmann::json Read(const SmallDrawing& drawing) const {
    Write("plan.dxf", DxfText(drawing));
    const Outcome outcome = Zdx({"info", "-o", "json", "plan.dxf"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_THAT(outcome.err, IsEmpty());
    const std::vector<nlohmann::json> documents = Documents(outcome.out);
    EXPECT_THAT(documents, SizeIs(1));
    return documents.empty() ? nlohmann::json() : documents.front();
  }
};

nlohmann::json TextProperty(const char* set, const char* name, const char* value) {
  return {{"formatId", set}, {"name", name}, {"typeCode", 2}, {"value", value}};
}

TEST_F(Json, OfAVeryLongTextIsWhole) {
  SmallDrawing drawing;
  drawing.projectName = std::string(3'000'000, 'x') + "end";
  Write("plan.dxf", DxfText(drawing));
  const Outcome outcome = Zdx({"info", "-o", "json", "plan.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  ASSERT_EQ(Documents(outcome.out).size(), 1u);
  EXPECT_NE(outcome.out.find(drawing.projectName), std::string::npos);
}

TEST_F(Json, ADrawingIsOneDocumentWithAllItsPropertiesInOrder) {
  const nlohmann::json expected = {
      TextProperty(kSummarySet, "2", "Ground floor"),
      TextProperty(kSummarySet, "3", ""),
      TextProperty(kSummarySet, "4", "Ada"),
      TextProperty(kSummarySet, "5", ""),
      TextProperty(kSummarySet, "6", ""),
      TextProperty(kSummarySet, "8", "Grace"),
      TextProperty(kSummarySet, "9", "7"),
      TextProperty(kCustomSet, "Client", "Harbour Trust"),
      TextProperty(kStorageSet, "DWG Type", "Zent"),
      TextProperty(kStorageSet, "Menu", "site"),
      TextProperty(kStorageSet, "ProjectName", "Quay"),
      TextProperty(kStorageSet, "HyperlinkBase", ""),
      TextProperty(kStorageSet, "StyleSheet", ""),
      TextProperty(kStorageSet, "Dimpost", ""),
      TextProperty(kStorageSet, "Dimapost", ""),
      TextProperty(kStorageSet, "Dimblk", ""),
      TextProperty(kStorageSet, "Dimblk1", ""),
      TextProperty(kStorageSet, "Dimblk2", ""),
      TextProperty(kStorageSet, "Named Object Name", "SITE_DATA"),
      TextProperty(kStorageSet, "Layer Name", "0"),
      TextProperty(kStorageSet, "Layer Name", "Walls"),
      TextProperty(kStorageSet, "LineType Name", "Continuous"),
      TextProperty(kStorageSet, "LineType Comments", "Solid line"),
      TextProperty(kStorageSet, "LineType Name", "Dashed"),
      TextProperty(kStorageSet, "LineType Comments", ""),
  };
  const nlohmann::json document = Read({});
  EXPECT_EQ(document.at("schema"), "zdx/1");
  EXPECT_EQ(document.at("file"), "plan.dxf");
  EXPECT_EQ(document.at("status"), "ok");
  EXPECT_EQ(document.at("drawingType"), "Zent");
  EXPECT_EQ(document.at("format"), "DXF (text)");
  EXPECT_EQ(document.at("signature"), "AC1032");
  EXPECT_EQ(document.at("codePage"), "ANSI_1252");
  EXPECT_EQ(document.at("properties"), expected);
  EXPECT_EQ(document.at("warnings"), nlohmann::json::array());
  EXPECT_THAT(document, SizeIs(9));
}

TEST_F(Json, TheKeysStandInAFixedOrder) {
  Write("plan.dxf", DxfText());
  EXPECT_THAT(Zdx({"info", "-o", "json", "--select", "summary", "plan.dxf"}).out,
              StartsWith("{\"schema\":\"zdx/1\",\"file\":\"plan.dxf\",\"status\":\"ok\","
                         "\"drawingType\":\"Zent\",\"format\":\"DXF (text)\","
                         "\"signature\":\"AC1032\",\"codePage\":\"ANSI_1252\","
                         "\"properties\":[{\"formatId\":"));
}

TEST_F(Json, WhatTheFileDoesNotTellOfItselfIsNull) {
  Write("bare.dxf", "0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n");
  const std::vector<nlohmann::json> documents =
      Documents(Zdx({"info", "-o", "json", "bare.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("format"), "DXF (text)");
  EXPECT_TRUE(documents[0].at("signature").is_null());
  EXPECT_TRUE(documents[0].at("codePage").is_null());
}

TEST_F(Json, EachFileIsALineOfItsOwnInTheOrderGiven) {
  Write("b.dxf", DxfText());
  Write("a.dxf", DxfText());
  const Outcome outcome = Zdx({"info", "-o", "json", "b.dxf", "a.dxf", "b.dxf"});
  EXPECT_EQ(outcome.exitCode, 0);
  std::vector<std::string> files;
  for (const nlohmann::json& document : Documents(outcome.out)) {
    files.push_back(document.at("file").get<std::string>());
  }
  EXPECT_THAT(files, ElementsAre("b.dxf", "a.dxf", "b.dxf"));
  EXPECT_EQ(std::count(outcome.out.begin(), outcome.out.end(), '\n'), 3);
}

TEST_F(Json, TextsKeepTheirCharacters) {
  SmallDrawing drawing;
  drawing.title = "\xD0\x9F\xD0\xBB\xD0\xB0\xD0\xBD \xF0\x9F\x8F\x97 \"q\" \033";
  EXPECT_EQ(Read(drawing).at("properties").at(0).at("value"), drawing.title);
}

TEST_F(Json, ACustomEntryWithTheNameOfTheDrawingTypeIsNotTakenForIt) {
  SmallDrawing drawing;
  drawing.custom = {{"DWG Type", "mine"}};
  Write("plan.dxf", DxfText(drawing));
  const std::vector<nlohmann::json> documents =
      Documents(Zdx({"info", "-o", "json", "--select", "custom", "plan.dxf"}).out);
  ASSERT_THAT(documents, SizeIs(1));
  EXPECT_EQ(documents[0].at("drawingType"), "Zent");
  EXPECT_EQ(documents[0].at("properties"),
            nlohmann::json::array({TextProperty(kCustomSet, "DWG Type", "mine")}));
}

}  // namespace

}  // namespace zdx_test

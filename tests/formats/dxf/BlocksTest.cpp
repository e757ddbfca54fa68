// Which blocks a drawing has, and what stands in them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"

namespace {

using namespace handmade_dxf;
using testing::ElementsAre;
using testing::IsEmpty;
using zdx::model::ObjectDescription;
using zdx::model::ObjectKey;
using Kind = ObjectDescription::Kind;

const Tags kSpaceRecords = Join({Record("1", "*Model_Space"), Record("2", "*Paper_Space")});

TEST(DxfBlocks, StandInTheOrderOfTheirRecordsBehindTheSpaces) {
  OpenDrawing drawing(BytesOf({.records = Join({Record("9", "B"), kSpaceRecords, Record("8", "A")}),
                               .blocks = Join({BlockOf("A"), BlockOf("B")})}));
  EXPECT_THAT(drawing.BlockNames(), ElementsAre(L"*Model_Space", L"*Paper_Space", L"B", L"A"));
}

TEST(DxfBlocks, WithoutARecordStandBehindThoseThatHaveOne) {
  OpenDrawing drawing(BytesOf({.records = Join({kSpaceRecords, Record("8", "Late")}),
                               .blocks = Join({BlockOf("Second"), BlockOf("LATE"), BlockOf("First"),
                                               BlockOf("*model_space"), BlockOf("second")})}));
  EXPECT_THAT(drawing.BlockNames(),
              ElementsAre(L"*Model_Space", L"*Paper_Space", L"Late", L"Second", L"First"));
  EXPECT_EQ(drawing.report().warningCount, 1u);
}

TEST(DxfBlocks, StandForRecordsWhereADrawingHasNone) {
  OpenDrawing drawing(BytesOf(
      {.version = "AC1009",
       .blocks = Join({BlockOf("DOOR"), BlockOf("$PAPER_SPACE"), BlockOf("$MODEL_SPACE")})}));
  EXPECT_THAT(drawing.BlockNames(), ElementsAre(L"$MODEL_SPACE", L"$PAPER_SPACE", L"DOOR"));
}

TEST(DxfBlocks, WithoutSpacesGetMadeUpOnes) {
  OpenDrawing drawing(BytesOf({.version = "AC1009",
                               .blocks = BlockOf("DOOR"),
                               .entities = Join({Line("10"), Line("11", "", true)})}));
  EXPECT_THAT(drawing.BlockNames(), ElementsAre(L"*Model_Space", L"*Paper_Space", L"DOOR"));
  const ObjectKey model = drawing.BlockNamed(L"*Model_Space");
  const ObjectKey paper = drawing.BlockNamed(L"*Paper_Space");
  EXPECT_TRUE(drawing->IsLayoutBlock(model));
  EXPECT_TRUE(drawing->IsLayoutBlock(paper));
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(model)), ElementsAre("10"));
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(paper)), ElementsAre("11"));
  EXPECT_THAT(drawing->BlockReferences(model), IsEmpty());
  EXPECT_FALSE(drawing->IsDynamicBlock(model));
  EXPECT_EQ(drawing.report().warningCount, 0u);
}

TEST(DxfBlocks, OfADrawingWithoutAnyAreNoSpacesEither) {
  OpenDrawing drawing(BytesOf({.version = "AC1009", .entities = Line("10")}));
  EXPECT_THAT(drawing.BlockNames(), IsEmpty());
}

TEST(DxfBlocks, AreLayoutsByTheirLayoutOrTheirName) {
  OpenDrawing drawing(BytesOf(
      {.records = Join({Record("1", "*MODEL_SPACE"), Record("2", "*Paper_Space"),
                        Record("3", "*paper_space12"), Record("4", "sheet", {{340, "22"}}),
                        Record("5", "door", {{340, "0"}}), Record("6", "*Paper_Spaces"),
                        Record("7", "*Paper_Space1a"),
                        Record("8", "listed", {{102, "{OTHER"}, {340, "22"}, {102, "}"}})})}));
  std::vector<bool> layouts;
  for (const ObjectKey block : drawing->TableRecords(zdx::model::TableKind::kBlock)) {
    layouts.push_back(drawing->IsLayoutBlock(block));
  }
  EXPECT_THAT(layouts, ElementsAre(true, true, true, true, false, false, false, false));
}

TEST(DxfBlocks, HoldTheirEntitiesInStoredOrderWithoutPartsOfOthers) {
  const Tags entities = Join({Entity("CIRCLE", "10", "", drawing::kCircleMarker),
                              Insert("other", "11"),
                              Attribute("TAG", "text"),
                              {{0, "SEQEND"}},
                              Entity("POLYLINE", "12", "", drawing::k2dPolylineMarker),
                              {{0, "VERTEX"}, {5, "13"}, {0, "SEQEND"}},
                              Entity("ATTDEF", "14", "", drawing::kTextMarker)});
  OpenDrawing drawing(
      BytesOf({.records = kSpaceRecords,
               .blocks = Join({BlockOf("first", Line("1")), BlockOf("door", entities),
                               BlockOf("last", Line("2"))})}));
  const auto told = drawing->BlockEntities(drawing.BlockNamed(L"door"));
  EXPECT_THAT(drawing.TypesOf(told), ElementsAre("CIRCLE", "INSERT", "POLYLINE", "ATTDEF"));
  for (const ObjectKey entity : told) EXPECT_EQ(drawing.OwnerOf(entity), L"door");
}

TEST(DxfBlocks, OfSpacesHoldWhatNamesThemOrTheirFlag) {
  const Tags records = Join({Record("1", "*Model_Space"), Record("2", "*Paper_Space"),
                             Record("3", "*Paper_Space0"), Record("4", "door")});
  // Applications name objects of their own before the owner.
  Tags reacting = Line("16", "2");
  reacting.insert(reacting.begin() + 2, {{102, "{REACTORS"}, {330, "1"}, {102, "}"}});
  const Tags entities = Join({Line("10", "1"), Line("11", "2", true), Line("12", "3"), Line("13"),
                              Line("14", "", true), Line("15", "99"), reacting});
  OpenDrawing drawing(
      BytesOf({.records = records,
               .blocks = Join({BlockOf("*Model_Space", Line("20")),
                               BlockOf("*Paper_Space0", Line("21")), BlockOf("door", Line("22"))}),
               .entities = entities}));
  const auto handlesIn = [&](const std::wstring& block) {
    return drawing.HandlesOf(drawing->BlockEntities(drawing.BlockNamed(block)));
  };
  EXPECT_THAT(handlesIn(L"*Model_Space"), ElementsAre("20", "10", "13", "15"));
  EXPECT_THAT(handlesIn(L"*Paper_Space"), ElementsAre("11", "14", "16"));
  EXPECT_THAT(handlesIn(L"*Paper_Space0"), ElementsAre("21", "12"));
  EXPECT_THAT(handlesIn(L"door"), ElementsAre("22"));
}

TEST(DxfBlocks, AreFoundByTheirOwnerIfTheyHaveNoName) {
  OpenDrawing drawing(
      BytesOf({.records = Join({kSpaceRecords, Record("8", "door")}),
               .blocks = Join({BlockOf("", Line("10"), "8"), BlockOf("", Line("11"), "77")})}));
  EXPECT_THAT(drawing.BlockNames(), ElementsAre(L"*Model_Space", L"*Paper_Space", L"door"));
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(drawing.BlockNamed(L"door"))),
              ElementsAre("10"));
  EXPECT_EQ(drawing.report().warningCount, 1u);
}

TEST(DxfBlocks, OfLaterDrawingsWithoutRecordsAreNamedByWhatStandsInThem) {
  OpenDrawing drawing(BytesOf(
      {.version = "AC1015",
       .blocks = Join({BlockOf("*Model_Space", {}, "1F"), BlockOf("*Paper_Space", {}, "20")}),
       .entities = Join({Line("10", "20"), Line("11", "1F")})}));
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(drawing.BlockNamed(L"*Paper_Space"))),
              ElementsAre("10"));
}

TEST(DxfBlocks, ThatComeTwiceHaveTheFirstsEntities) {
  OpenDrawing drawing(
      BytesOf({.records = Join({kSpaceRecords, Record("8", "door"), Record("8", "DOOR")}),
               .blocks = Join({BlockOf("Door", Line("10")), BlockOf("door", Line("11"))})}));
  const auto& blocks = drawing->TableRecords(zdx::model::TableKind::kBlock);
  ASSERT_EQ(blocks.size(), 4u);
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(blocks[2])), ElementsAre("10"));
  EXPECT_THAT(drawing->BlockEntities(blocks[3]), IsEmpty());
  EXPECT_EQ(drawing.report().warningCount, 1u);
}

TEST(DxfBlocks, WithoutTheirEndEndAtTheNextOrWithTheSection) {
  Tags first = BlockOf("first", Line("10"));
  first.pop_back();
  Tags second = BlockOf("second", Line("11"));
  second.pop_back();
  OpenDrawing drawing(
      BytesOf({.records = kSpaceRecords, .blocks = Join({first, second}), .entities = Line("12")}));
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(drawing.BlockNamed(L"first"))),
              ElementsAre("10"));
  EXPECT_THAT(drawing.HandlesOf(drawing->BlockEntities(drawing.BlockNamed(L"second"))),
              ElementsAre("11"));
}

TEST(DxfBlocks, AreDynamicByTheirExtensionOrTheirExtendedData) {
  const Tags records =
      Join({Record("1", "*Model_Space"), Record("2", "by extension", Extension("70")),
            Record("3", "by data", {{1001, drawing::kTrueNameApplication}, {1000, "by data"}}),
            Record("4", "extended otherwise", Extension("71")), Record("5", "plain"),
            Record("6", "lost", Extension("79"))});
  const Tags objects = Join({Dictionary("70", drawing::kDynamicBlockKey, "72"),
                             Dictionary("71", "OTHER", "72"),
                             {{0, "XRECORD"}, {5, "72"}}});
  OpenDrawing drawing(BytesOf({.records = records, .objects = objects}));
  const auto isDynamic = [&](const std::wstring& name) {
    return drawing->IsDynamicBlock(drawing.BlockNamed(name));
  };
  EXPECT_TRUE(isDynamic(L"by extension"));
  EXPECT_TRUE(isDynamic(L"by data"));
  EXPECT_FALSE(isDynamic(L"extended otherwise"));
  EXPECT_FALSE(isDynamic(L"plain"));
  EXPECT_FALSE(isDynamic(L"lost"));
}

TEST(DxfBlocks, CarryTheVariationsOfTheBlockThatTheyName) {
  const auto variation = [](const std::string& of) {
    return Tags{{1001, drawing::kCopyApplication}, {1070, 1}, {1005, of}};
  };
  const Tags records = Join({Record("1", "*Model_Space"), Record("22", "*U2", variation("A0")),
                             Record("A0", "first"), Record("21", "*U1", variation("A0")),
                             Record("B0", "second"), Record("23", "*U3", variation("B0")),
                             Record("24", "*U4", {{1001, "OTHER"}, {1005, "A0"}})});
  OpenDrawing drawing(BytesOf({.records = records}));
  const auto copiesOf = [&](const std::wstring& name) {
    std::vector<std::wstring> names;
    for (const ObjectKey copy : drawing->AnonymousCopies(drawing.BlockNamed(name))) {
      names.push_back(drawing.NameOf(copy));
    }
    return names;
  };
  EXPECT_THAT(copiesOf(L"first"), ElementsAre(L"*U2", L"*U1"));
  EXPECT_THAT(copiesOf(L"second"), ElementsAre(L"*U3"));
  EXPECT_THAT(copiesOf(L"*U1"), IsEmpty());
}

TEST(DxfBlocks, AreNoVariationsOfThemselves) {
  const Tags data = {{1001, drawing::kCopyApplication}, {1070, 1}, {1005, "A0"}};
  OpenDrawing drawing(
      BytesOf({.records = Join({Record("1", "*Model_Space"), Record("A0", "gate", data)})}));
  EXPECT_THAT(drawing->AnonymousCopies(drawing.BlockNamed(L"gate")), IsEmpty());
}

std::string Capital(std::string text) {
  for (char& c : text) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
  return text;
}

class DxfTrueName : public testing::TestWithParam<std::pair<const char*, const wchar_t*>> {};

// Also where the applications' names are in capitals.
TEST_P(DxfTrueName, IsToldWhereTheRecordHasAnotherAndReferencesUseTheRecords) {
  const auto& [version, name] = GetParam();
  const Tags data = {{1001, Capital(drawing::kTrueNameApplication)}, {1000, "window"}};
  OpenDrawing drawing(
      BytesOf({.version = version,
               .records = Join({Record("1", "*Model_Space"), Record("2", "*U17", data)}),
               .blocks = BlockOf("*U17", Line("10")),
               .entities = Insert("*u17", "11")}));
  EXPECT_THAT(drawing.BlockNames(), ElementsAre(L"*Model_Space", name));
  EXPECT_THAT(drawing.ReferencesOf(name), ElementsAre("11"));
  EXPECT_THAT(drawing->BlockEntities(drawing.BlockNamed(name)), testing::SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(Versions, DxfTrueName,
                         testing::Values(std::pair("AC1014", L"window"),
                                         std::pair("AC1021", L"window"),
                                         std::pair("AC1024", L"*U17")),
                         [](const auto& test) { return std::string(test.param.first); });

TEST(DxfBlocks, ThatWereGivenANameKeepItInEveryVersion) {
  const Tags data = {{1001, drawing::kTrueNameApplication}, {1000, "before"}};
  OpenDrawing drawing(
      BytesOf({.version = "AC1021",
               .records = Join({Record("1", "*Model_Space"), Record("2", "now", data)})}));
  EXPECT_THAT(drawing.BlockNames(), ElementsAre(L"*Model_Space", L"now"));
}

TEST(DxfEntities, AreDescribedByTheirType) {
  const Tags entities = Join(
      {Insert("door"), Attribute("T", "v"), Entity("ATTDEF", "", "", drawing::kTextMarker),
       Entity("TEXT", "", "", drawing::kTextMarker), Entity("MTEXT", "", "", drawing::kMTextMarker),
       Entity("LINE", "", "", drawing::kLineMarker),
       Entity("SPECIAL", "", "", drawing::kEntityMarker)});
  const Tags objects = Join({{{0, "GEODATA"}, {5, "70"}}, {{0, "XRECORD"}, {5, "71"}}});
  OpenDrawing drawing(
      BytesOf({.records = kSpaceRecords, .entities = entities, .objects = objects}));
  std::vector<Kind> kinds;
  const ObjectKey model = drawing.BlockNamed(L"*Model_Space");
  for (const ObjectKey entity : drawing->BlockEntities(model)) {
    kinds.push_back(drawing->Describe(entity).kind);
  }
  EXPECT_THAT(kinds, ElementsAre(Kind::kBlockReference, Kind::kAttributeDefinition, Kind::kText,
                                 Kind::kMText, Kind::kEntity, Kind::kEntity));
  EXPECT_EQ(drawing->Describe(*drawing->Find(0x70)).kind, Kind::kGeoData);
  EXPECT_EQ(drawing->Describe(*drawing->Find(0x71)).kind, Kind::kObject);
}

TEST(DxfEntities, WithoutAKindOfTheirOwnTellTheirClass) {
  for (const auto& [version, name] :
       {std::pair("AC1015", drawing::kLineMarker), std::pair("AC1009", "LINE")}) {
    OpenDrawing drawing(BytesOf({.version = version, .blocks = BlockOf("door", Line("10"))}));
    const auto entities = drawing->BlockEntities(drawing.BlockNamed(L"door"));
    ASSERT_EQ(entities.size(), 1u);
    EXPECT_EQ(drawing->Describe(entities[0]).className, ZDXEngine::WideFromUtf8(name)) << version;
  }
}

TEST(DxfEntities, OfTextTellItInOneOrManyPieces) {
  const Tags entities = Join({Entity("TEXT", "", "", drawing::kTextMarker, {{1, "one line"}}),
                              Entity("MTEXT", "", "", drawing::kMTextMarker,
                                     {{3, "first \\P"},
                                      {3, "second "},
                                      {1, "third"},
                                      {7, "style"},
                                      {101, drawing::kEmbeddedObject},
                                      {1, "another"}}),
                              Entity("MTEXT", "", "", drawing::kMTextMarker, {{3, "cut"}}),
                              Entity("TEXT", "", "", drawing::kTextMarker)});
  OpenDrawing drawing(BytesOf({.records = kSpaceRecords, .entities = entities}));
  std::vector<std::optional<std::wstring>> texts;
  for (const ObjectKey entity : drawing->BlockEntities(drawing.BlockNamed(L"*Model_Space"))) {
    texts.push_back(drawing->EntityText(entity));
  }
  EXPECT_THAT(texts, ElementsAre(L"one line", L"first \\Psecond third", L"cut", L""));
}

}  // namespace

// Where blocks are shown, and in which order that is told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/dxf/HandmadeDrawing.h"
#include "support/drawing/Tokens.h"

namespace {

using namespace handmade_dxf;
using testing::ElementsAre;
using testing::IsEmpty;
using zdx::model::ObjectKey;

Tags Listed(const std::vector<std::string>& handles) {
  Tags tags = {{102, "{BLKREFS"}};
  for (const std::string& handle : handles) tags.emplace_back(331, handle);
  tags.emplace_back(102, "}");
  return tags;
}

Contents WithDoor(const Tags& entities, const Tags& door = {}, const Tags& inHouse = {}) {
  return {.records = Join({Record("1", "*Model_Space"), Record("2", "*Paper_Space"),
                           Record("3", "door", door), Record("4", "house")}),
          .blocks = Join({BlockOf("house", inHouse), BlockOf("door")}),
          .entities = entities};
}

TEST(DxfReferences, StandByTheirHandlesThenThoseWithoutByTheirPlaces) {
  Tags placed = Insert("door");
  placed.emplace_back(62, 3);
  OpenDrawing drawing(BytesOf(WithDoor(
      Join({Insert("door", "C0"), placed, Insert("door", "B0"), Insert("door", "100000000")}), {},
      Join({Insert("door", "A1"), Insert("door", "0")}))));
  EXPECT_THAT(drawing.ReferencesOf(L"door"), ElementsAre("A1", "B0", "C0", "100000000", "0", "-"));
}

TEST(DxfReferences, StandByTheirHandlesWhateverTheRecordLists) {
  OpenDrawing drawing(BytesOf(WithDoor(
      Join({Insert("door", "A"), Insert("door", "B"), Insert("door", "C"), Insert("house", "D")}),
      Listed({"C", "77", "D", "A", "C", "0"}))));
  EXPECT_THAT(drawing.ReferencesOf(L"door"), ElementsAre("A", "B", "C"));
  EXPECT_THAT(drawing.ReferencesOf(L"house"), ElementsAre("D"));
}

TEST(DxfReferences, NameTheirBlockInAnyCase) {
  OpenDrawing drawing(BytesOf(
      {.records = Join({Record("1", "*Model_Space"), Record("2", "T\xC3\x9CR")}),
       .entities =
           Join({Insert("t\xC3\xBCr", "A"), Insert("T\xC3\xBCR", "B"), Insert("TUR", "C")})}));
  EXPECT_THAT(drawing.ReferencesOf(L"T\u00DCR"), ElementsAre("A", "B"));
}

TEST(DxfReferences, OfNoBlockAreToldOfAndLeadNowhere) {
  Tags nameless = {{0, "INSERT"}, {5, "B"}, {100, drawing::kEntityMarker}, {10, 0.0}};
  OpenDrawing drawing(BytesOf(WithDoor(Join({Insert("window", "A"), nameless}))));
  EXPECT_THAT(drawing.ReferencesOf(L"door"), IsEmpty());
  EXPECT_EQ(drawing.report().warningCount, 2u);
  for (const ObjectKey entity : drawing->BlockEntities(drawing.BlockNamed(L"*Model_Space"))) {
    EXPECT_EQ(drawing->ReadBlockReference(entity).block, std::nullopt);
  }
}

TEST(DxfReferences, WithOneHandleAreAllTold) {
  OpenDrawing drawing(
      BytesOf(WithDoor(Join({Insert("door", "A"), Insert("door", "A")}), Listed({"A", "A"}))));
  EXPECT_THAT(drawing.ReferencesOf(L"door"), ElementsAre("A", "A"));
  const auto references = drawing->BlockReferences(drawing.BlockNamed(L"door"));
  EXPECT_LT(references[0], references[1]);
}

TEST(DxfReferences, BelongToTheBlockThatTheyStandIn) {
  OpenDrawing drawing(BytesOf(
      WithDoor(Join({Insert("door", "A", "1"), Insert("door", "B", "2"), Insert("door", "C")}), {},
               Insert("door", "D", "1"))));
  std::vector<std::wstring> owners;
  for (const ObjectKey reference : drawing->BlockReferences(drawing.BlockNamed(L"door"))) {
    owners.push_back(drawing.OwnerOf(reference));
    EXPECT_EQ(drawing->ReadBlockReference(reference).block, drawing.BlockNamed(L"door"));
  }
  EXPECT_THAT(owners, ElementsAre(L"*Model_Space", L"*Paper_Space", L"*Model_Space", L"house"));
}

TEST(DxfReferences, CarryTheAttributesThatFollowWhateverTheirFlagSays) {
  Tags denying = Insert("door", "A");
  denying.emplace_back(66, 0);
  const Tags entities = Join({denying,
                              Attribute("ONE", "1"),
                              Attribute("TWO", "2"),
                              {{0, "SEQEND"}},
                              Attribute("STRAY", "3"),
                              Insert("door", "B"),
                              Attribute("ONE", "4"),
                              Line("C"),
                              Attribute("STRAY", "5"),
                              Insert("door", "D")});
  OpenDrawing drawing(BytesOf(WithDoor(entities)));
  std::vector<std::vector<std::wstring>> values;
  for (const ObjectKey reference : drawing->BlockReferences(drawing.BlockNamed(L"door"))) {
    values.emplace_back();
    for (const ObjectKey attribute : drawing->ReadBlockReference(reference).attributes) {
      values.back().push_back(drawing->ReadAttribute(attribute).text.value());
    }
  }
  EXPECT_THAT(values, ElementsAre(ElementsAre(L"1", L"2"), ElementsAre(L"4"), IsEmpty()));
}

TEST(DxfReferences, HaveAttributesWhoseOwnerIsNotTold) {
  OpenDrawing drawing(BytesOf(WithDoor(Join({Insert("door", "A"), Attribute("ONE", "1")}))));
  const auto references = drawing->BlockReferences(drawing.BlockNamed(L"door"));
  ASSERT_EQ(references.size(), 1u);
  const auto attributes = drawing->ReadBlockReference(references[0]).attributes;
  ASSERT_EQ(attributes.size(), 1u);
  EXPECT_EQ(drawing->OwnerBlock(attributes[0]), std::nullopt);
}

TEST(DxfReferences, StandInNoSpaceWhereADrawingHasNone) {
  OpenDrawing drawing(BytesOf({.records = Record("3", "door"), .entities = Insert("door", "A")}));
  EXPECT_THAT(drawing.ReferencesOf(L"door"), ElementsAre("A"));
  const auto references = drawing->BlockReferences(drawing.BlockNamed(L"door"));
  EXPECT_EQ(drawing.OwnerOf(references[0]), L"-");
}

}  // namespace

// What the values of blocks are called: by tag or by prompt.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>

#include "unit/properties/read/BlockTest.h"

using testing::Contains;
using testing::ElementsAre;

namespace {

class AttributeNames : public scripted::BlockTest {
 protected:
  AttributeNames() { Ask(L"Door", kOwnId, true); }

  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  scripted::Entity& reference = door.AddReference(&modelSpace);
};

TEST_F(AttributeNames, AreThePromptsOfTheDefinitions) {
  door.AddDefinition(L"A", L"Width");
  door.AddDefinition(L"B", L"Height");
  reference.AddAttribute(L"A", L"90");
  reference.AddAttribute(L"B", L"210");
  EXPECT_THAT(ReadValues(), ElementsAre("Width=90", "Height=210"));
}

TEST_F(AttributeNames, AreTheTagsIfTheFilterSaysSo) {
  filters[0].usePrompt = false;
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
  EXPECT_EQ(world.Count("prompt"), 0);
  EXPECT_EQ(world.Count("blockTableRecord"), 0);
}

TEST_F(AttributeNames, WithAnEmptyPromptItIsTheTag) {
  door.AddDefinition(L"A", L"");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, WithoutADefinitionOfTheTagItIsTheTag) {
  door.AddDefinition(L"B", L"Height");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, TagsAreComparedWithRegardToCase) {
  door.AddDefinition(L"a", L"Width");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, TagsAreComparedToTheirEnd) {
  door.AddDefinition(L"AB", L"Width");
  reference.AddAttribute(L"A", L"90");
  reference.AddAttribute(L"ABC", L"91");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90", "ABC=91"));
}

TEST_F(AttributeNames, TwoDefinitionsOfOneTagAreToldApartByTheirPlace) {
  door.AddDefinition(L"A", L"Width");
  door.AddDefinition(L"A", L"Height");
  reference.AddAttribute(L"A", L"90");
  reference.AddAttribute(L"A", L"210");
  EXPECT_THAT(ReadValues(), ElementsAre("Width=90", "Height=210"));
}

TEST_F(AttributeNames, ADefinitionInThatPlaceWithAnotherTagDoesNotCount) {
  door.AddDefinition(L"B", L"Height");
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  reference.AddAttribute(L"B", L"210");
  EXPECT_THAT(ReadValues(), ElementsAre("Width=90", "Height=210"));
}

TEST_F(AttributeNames, OutOfPlaceTheFirstDefinitionOfTheTagCounts) {
  door.AddDefinition(L"B", L"Height");
  door.AddDefinition(L"A", L"first");
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("first=90"));
}

TEST_F(AttributeNames, TheFirstDefinitionOfTheTagIsKeptThoughItsPromptIsEmpty) {
  door.AddDefinition(L"B", L"Height");
  door.AddDefinition(L"A", L"");
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, AnEmptyPromptInTheRightPlaceGivesTheTagAndNotTheFirstPrompt) {
  door.AddDefinition(L"A", L"first");
  door.AddDefinition(L"A", L"");
  reference.AddAttribute(L"B", L"1");
  reference.AddAttribute(L"A", L"2");
  EXPECT_THAT(ReadValues(), ElementsAre("B=1", "A=2"));
}

TEST_F(AttributeNames, ThePlacesOfDefinitionsCountConstantsThoseOfAttributesDoNot) {
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  door.AddDefinition(L"A", L"first");
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"1");
  reference.AddAttribute(L"A", L"2");
  EXPECT_THAT(ReadValues(), ElementsAre("Made by=Smith", "first=1", "first=2"))
      << "the second attribute meets the first definition, which stands in the second place";
}

TEST_F(AttributeNames, AConstantDefinitionsPromptCountsToo) {
  door.AddConstant(L"A", L"constant", L"Smith");
  reference.AddAttribute(L"A", L"1");
  EXPECT_THAT(ReadValues(), ElementsAre("constant=Smith", "constant=1"));
}

TEST_F(AttributeNames, EntitiesThatAreNoDefinitionsHaveNoPlace) {
  door.Add(scripted::EntityKind::kText);
  door.AddDefinition(L"A", L"first");
  door.Add(scripted::EntityKind::kPlain);
  door.Add(scripted::EntityKind::kDefinition).hasClass = false;
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"1");
  reference.AddAttribute(L"A", L"2");
  EXPECT_THAT(ReadValues(), ElementsAre("first=1", "second=2"));
}

TEST_F(AttributeNames, ADefinitionOfAClassBelowNeitherCountsNorIsRead) {
  door.AddDefinition(L"A", L"special").className = L"ZnDbSpecialDefinition";
  door.AddDefinition(L"A", L"first");
  reference.AddAttribute(L"A", L"1");
  EXPECT_THAT(ReadValues(), ElementsAre("first=1"));
  EXPECT_THAT(world.Calls({"prompt"}), ElementsAre("definition A of Door.prompt()"));
}

TEST_F(AttributeNames, AClassThatOnlyHasTheDefinitionsNameIsNoDefinition) {
  door.AddDefinition(L"A", L"first");
  door.Add(scripted::EntityKind::kPlain).className = L"ZnDbAttributeDefinition";
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"1");
  reference.AddAttribute(L"A", L"2");
  EXPECT_THAT(ReadValues(), ElementsAre("first=1", "second=2"));
}

TEST_F(AttributeNames, AnAttributeThatDoesNotOpenTakesNoPlace) {
  door.AddDefinition(L"A", L"first");
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"B", L"0");
  reference.AddAttribute(L"A", L"1");
  world.Fail("openAttribute", 5, 1);
  EXPECT_THAT(ReadValues(), ElementsAre("first=1"));
}

TEST_F(AttributeNames, TheBlockIsOpenedForReadItsEntitiesAsAnyObjectsAndAllAreClosed) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  Read();
  const std::vector<std::string> calls =
      world.Calls({"blockTableRecord", "hasAttributeDefinitions", "newIterator", "getEntityId",
                   "zndbOpenObject", "prompt"});
  const auto begin = std::ranges::find(calls, "reference 1 of Door.blockTableRecord()");
  EXPECT_THAT(std::vector(begin, calls.end()),
              ElementsAre("reference 1 of Door.blockTableRecord()",
                          "zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)",
                          "block Door.hasAttributeDefinitions()",
                          "block Door.newIterator(true, true)", "block Door iterator.getEntityId()",
                          "zndbOpenObject(definition A of Door, any, 0, false)",
                          "definition A of Door.prompt()"));
  EXPECT_THAT(world.Calls({"step"}), Contains("block Door iterator.step(true, true)"));
}

TEST_F(AttributeNames, ABlockIsReadOnceForAllAttributesOfAReference) {
  door.AddDefinition(L"A", L"Width");
  for (int i = 0; i < 5; ++i) reference.AddAttribute(L"A", L"90");
  Read();
  EXPECT_EQ(world.Count("hasAttributeDefinitions"), 1);
}

TEST_F(AttributeNames, WithoutTheBlockTheyAreTheTags) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  world.Fail("zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)", 5, 2);
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, OfAReferenceToAnUnknownBlockTheyAreTheTags) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  reference.block = nullptr;
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, OfABlockThatSaysItHasNoDefinitionsTheyAreTheTags) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  world.ReturnNull("hasAttributeDefinitions");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, WithoutAnIteratorTheyAreTheTags) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  world.FailWithNull("block Door.newIterator", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, AnEntityWithoutAnIdOrThatDoesNotOpenHasNoPlace) {
  door.AddDefinition(L"B", L"no id");
  door.AddDefinition(L"C", L"not open");
  door.AddDefinition(L"A", L"first");
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"1");
  reference.AddAttribute(L"A", L"2");
  world.Fail("getEntityId", 5, 1);
  world.Fail("zndbOpenObject(definition C of Door, any, 0, false)", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("first=1", "second=2"));
}

TEST_F(AttributeNames, APromptThatCannotBeReadIsEmpty) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  world.Fail("prompt", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(AttributeNames, ADefinitionWhoseTagCannotBeReadKeepsItsPlace) {
  door.AddDefinition(L"A", L"first");
  door.AddDefinition(L"A", L"second");
  reference.AddAttribute(L"A", L"1");
  reference.AddAttribute(L"A", L"2");
  world.Fail("definition A of Door.tag", 5, 1);
  EXPECT_THAT(ReadValues(), ElementsAre("second=1", "second=2"));
}

TEST_F(AttributeNames, ATagThatCannotBeReadIsEmpty) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  world.Fail("A of reference 1 of Door.tag", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("19=90"));
}

// Names of constant definitions.
class ConstantNames : public AttributeNames {};

TEST_F(ConstantNames, AreThePrompts) {
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  EXPECT_THAT(ReadValues(), ElementsAre("Made by=Smith"));
}

TEST_F(ConstantNames, AreTheTagsIfTheFilterSaysSo) {
  filters[0].usePrompt = false;
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(ConstantNames, WithAnEmptyPromptItIsTheTag) {
  door.AddConstant(L"MAKER", L"", L"Smith");
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(ConstantNames, WithAPromptThatCannotBeReadItIsTheTag) {
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  world.Fail("prompt", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(ConstantNames, OfTwoFiltersWithOneSetTheFirstDecidesThoughTheSecondNamesTheBlock) {
  filters.clear();
  Ask(L"Window", kOwnId, false);
  Ask(L"Door", kOwnId, true);
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(ConstantNames, AttributesToo) {
  filters.clear();
  Ask(L"Window", kOwnId, false);
  Ask(L"Door", kOwnId, true);
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  EXPECT_THAT(ReadValues(), ElementsAre("A=90"));
}

TEST_F(ConstantNames, FormatIdsAreComparedByAllTheirBytes) {
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  for (std::size_t i = 0; i < sizeof(GUID); ++i) {
    std::array<unsigned char, sizeof(GUID)> bytes;
    std::memcpy(bytes.data(), &kOwnId, sizeof kOwnId);
    bytes[i] ^= 1;
    GUID almost;
    std::memcpy(&almost, bytes.data(), sizeof almost);
    filters.clear();
    properties.clear();
    Ask(L"Window", almost, false);
    Ask(L"Door", kOwnId, true);
    EXPECT_THAT(ReadValues(), ElementsAre("Made by=Smith")) << "byte " << i;
  }
}

}  // namespace

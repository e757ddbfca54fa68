// The routines of the walk by themselves: texts, sets that no filter has, and blocks by name.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/read/AttributeProperties.h"
#include "properties/read/AttributeTexts.h"
#include "properties/read/OpenObject.h"
#include "unit/properties/Outages.h"
#include "unit/properties/read/BlockTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::AddConstantAttribute;
using ZDXEngine::AddMTextProperty;
using ZDXEngine::AddReferenceAttributes;
using ZDXEngine::AddTextProperty;
using ZDXEngine::ClosedObject;
using ZDXEngine::OpenForRead;

namespace {

class AttributeRoutines : public scripted::BlockTest {
 protected:
  void AddConstant(const scripted::Entity& entity, bool byId) {
    const ClosedObject<ZnDbAttributeDefinition> definition(
        OpenForRead<ZnDbAttributeDefinition>(scripted::IdOf(entity)));
    AddConstantAttribute(properties, definition.get(), kOwnId, filters, byId);
  }
  void AddReference(const scripted::Entity& entity, bool byId) {
    const ClosedObject<ZnDbBlockReference> reference(
        OpenForRead<ZnDbBlockReference>(scripted::IdOf(entity)));
    AddReferenceAttributes(properties, reference.get(), kOwnId, filters, byId);
  }

  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  scripted::Entity& reference = door.AddReference(&modelSpace);
};

// How the text of an attribute is told.
class AttributeTexts : public AttributeRoutines {
 protected:
  AttributeTexts() { Ask(L"Door"); }
};

TEST_F(AttributeTexts, OfOneLineAreToldAsStored) {
  reference.AddAttribute(L"A", L"a;b\r\nc;");
  EXPECT_THAT(ReadValues(), ElementsAre("A=a;b\r\nc;"));
}

TEST_F(AttributeTexts, EmptyOnesAreEmpty) {
  reference.AddAttribute(L"A", L"");
  reference.AddAttribute(L"B", L"").multiLine = true;
  EXPECT_THAT(ReadValues(), ElementsAre("A=", "B="));
}

TEST_F(AttributeTexts, OfManyLinesLoseTheirLineEndsAndTheFirstSemicolon) {
  reference.AddAttribute(L"A", L"one\r\ntwo;three\nfour;five\rsix").multiLine = true;
  EXPECT_THAT(ReadValues(), ElementsAre("A=one  two three four;five six"));
}

TEST_F(AttributeTexts, OfManyLinesKeepAllOtherCodesOfFormat) {
  reference.AddAttribute(L"A", L"{\\fArial|b0;one\\P\\H2.5;two\ttabbed}").multiLine = true;
  EXPECT_THAT(ReadValues(), ElementsAre("A={\\fArial|b0 one\\P\\H2.5;two\ttabbed}"));
}

TEST_F(AttributeTexts, EachOfManyLinesLosesAFirstSemicolonOfItsOwn) {
  reference.AddAttribute(L"A", L";a;").multiLine = true;
  reference.AddAttribute(L"B", L"b;;").multiLine = true;
  EXPECT_THAT(ReadValues(), ElementsAre("A= a;", "B=b ;"));
}

TEST_F(AttributeTexts, BothRecordsOfManyLinesHaveTheSameText) {
  reference.AddAttribute(L"A", L"a;b;c").multiLine = true;
  Read();
  EXPECT_THAT(Under(kOwnSet), ElementsAre("A=a b;c"));
  EXPECT_THAT(Values(), ElementsAre("A=a b;c"));
}

TEST_F(AttributeTexts, OneThatCannotBeReadIsNullInBothRecords) {
  reference.AddAttribute(L"A", L"one");
  reference.AddAttribute(L"B", L"two").multiLine = true;
  world.Fail("textString", 5);
  Read();
  EXPECT_THAT(expected::Shown(properties),
              ElementsAre("A=(null)", "A=(null)", "B=(null)", "B=(null)"));
}

TEST_F(AttributeTexts, AConstantThatCannotBeReadIsNullInBothRecords) {
  door.AddConstant(L"MAKER", L"", L"Smith");
  world.Fail("textString", 5);
  Read();
  EXPECT_THAT(expected::Shown(properties), ElementsAre("MAKER=(null)", "MAKER=(null)"));
}

TEST_F(AttributeTexts, WithoutAnIdThereIsTheSecondRecordAlone) {
  scripted::Entity& attribute = reference.AddAttribute(L"A", L"a;b");
  const ClosedObject<ZnDbAttribute> opened(OpenForRead<ZnDbAttribute>(scripted::IdOf(attribute)));
  AddTextProperty(properties, opened.get(), L"name", kOwnId, false);
  AddMTextProperty(properties, opened.get(), L"name", kOwnId, false);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("name=a;b", "name=a b"));
  EXPECT_THAT(Values(), ElementsAre("name=a;b", "name=a b"));
}

TEST_F(AttributeTexts, AMultiLineTextTellsItsOwn) {
  scripted::Entity& text = door.Add(scripted::EntityKind::kMText);
  text.text = L"a;b\nc";
  const ClosedObject<ZnDbMText> opened(OpenForRead<ZnDbMText>(scripted::IdOf(text)));
  AddMTextProperty(properties, opened.get(), L"name", kOwnId, true);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("name=a b c", "name=a b c"));
  EXPECT_EQ(world.Count("text"), 1);
}

TEST_F(AttributeTexts, WhatIsNeitherAttributeNorMultiLineTextTellsNone) {
  for (const auto kind : {scripted::EntityKind::kText, scripted::EntityKind::kDefinition,
                          scripted::EntityKind::kReference}) {
    properties.clear();
    scripted::Entity& entity = door.Add(kind);
    entity.text = L"text";
    const ClosedObject<ZnDbEntity> opened(OpenForRead<ZnDbEntity>(scripted::IdOf(entity)));
    AddMTextProperty(properties, opened.get(), L"name", kOwnId, false);
    EXPECT_THAT(expected::Shown(properties), ElementsAre("name=(null)"));
  }
}

// A set that no filter has: possible only where a routine is called by itself.
class WithoutAFilter : public AttributeRoutines {};

TEST_F(WithoutAFilter, AConstantIsNotAddedAndNotClosed) {
  AddConstant(door.AddConstant(L"MAKER", L"Made by", L"Smith"), true);
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(Closings("definition MAKER of Door"), 1) << "by this test alone";
}

TEST_F(WithoutAFilter, AttributesAreNamedByTheirPrompts) {
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  AddReference(reference, true);
  EXPECT_THAT(Under(kOwnSet), ElementsAre("Width=90"));
  EXPECT_THAT(Values(), ElementsAre("Width=90"));
}

// The block's name decides instead of the set.
class BlocksByName : public AttributeRoutines {
 protected:
  scripted::Entity& maker = door.AddConstant(L"MAKER", L"Made by", L"Smith");
};

TEST_F(BlocksByName, AConstantIsPublishedUnderTheEnginesSetAlone) {
  Ask(L"dOOR", kOtherId, true);
  AddConstant(maker, false);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Made by=Smith"));
  EXPECT_THAT(Values(), ElementsAre("Made by=Smith"));
  EXPECT_EQ(Closings("definition MAKER of Door"), 2);
}

TEST_F(BlocksByName, AConstantMarksItsFilterAsMatched) {
  Ask(L"Window");
  Ask(L"Door");
  Ask(L"Door");
  AddConstant(maker, false);
  EXPECT_FALSE(filters[0].matched);
  EXPECT_TRUE(filters[1].matched);
  EXPECT_FALSE(filters[2].matched);
}

TEST_F(BlocksByName, AConstantTakesAFilterThatIsMatchedAlready) {
  Ask(L"Door", kOwnId, false);
  Ask(L"Door", kOwnId, true);
  filters[0].matched = true;
  AddConstant(maker, false);
  EXPECT_THAT(Values(), ElementsAre("MAKER=Smith"));
  EXPECT_FALSE(filters[1].matched);
}

TEST_F(BlocksByName, AConstantOfABlockThatNoFilterNamesIsNotAddedAndNotClosed) {
  Ask(L"Window");
  AddConstant(maker, false);
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(Closings("definition MAKER of Door"), 1) << "by this test alone";
}

TEST_F(BlocksByName, AConstantsBlockIsItsOwnerAndIsClosed) {
  Ask(L"Door");
  AddConstant(maker, false);
  EXPECT_THAT(world.Calls({"ownerId", "zndbOpenObject", "getName"}),
              ElementsAre("zndbOpenObject(definition MAKER of Door, ZnDbAttributeDefinition, 0, "
                          "false)",
                          "definition MAKER of Door.ownerId()",
                          "zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)",
                          "block Door.getName()"));
  EXPECT_EQ(Closings("block Door"), 1);
}

TEST_F(BlocksByName, AConstantWhoseBlockHasNoNameIsNotAdded) {
  Ask(L"Door");
  Ask(L"");
  world.Fail("getName", 5);
  AddConstant(maker, false);
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_FALSE(filters[0].matched);
  EXPECT_FALSE(filters[1].matched);
}

TEST_F(BlocksByName, AConstantWhoseBlockDoesNotOpenIsNotAdded) {
  Ask(L"Door");
  world.Fail("zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)", 5);
  AddConstant(maker, false);
  EXPECT_THAT(properties, IsEmpty());
}

TEST_F(BlocksByName, AReferenceIsPublishedUnderTheFiltersSetAndMarksIt) {
  Ask(L"DOOR", kOtherId, true);
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  AddReference(reference, false);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("Width=90", "Width=90"));
  EXPECT_THAT(Under(kOtherSet), ElementsAre("Width=90"));
  EXPECT_THAT(Values(), ElementsAre("Width=90"));
  EXPECT_TRUE(filters[0].matched);
}

TEST_F(BlocksByName, AReferencesFilterDecidesAboutThePromptItself) {
  Ask(L"Window", kOtherId, true);
  Ask(L"Door", kOtherId, false);
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  AddReference(reference, false);
  EXPECT_THAT(Values(), ElementsAre("A=90"));
}

TEST_F(BlocksByName, AReferencePassesOverFiltersThatAreMatched) {
  Ask(L"Door", kOwnId);
  Ask(L"Door", kOtherId);
  filters[0].matched = true;
  reference.AddAttribute(L"A", L"90");
  AddReference(reference, false);
  EXPECT_THAT(Under(kOwnSet), IsEmpty());
  EXPECT_THAT(Under(kOtherSet), ElementsAre("A=90"));
  EXPECT_TRUE(filters[1].matched);
}

TEST_F(BlocksByName, AReferenceWithoutAFreeFilterIsNamedByTagsUnderTheEnginesSetAlone) {
  Ask(L"Door", kOwnId, true);
  filters[0].matched = true;
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  AddReference(reference, false);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("A=90"));
  EXPECT_THAT(Values(), ElementsAre("A=90"));
}

TEST_F(BlocksByName, AReferenceWhoseBlockHasNoNameIsNamedByTagsUnderTheEnginesSetAlone) {
  Ask(L"Door", kOwnId, true);
  Ask(L"", kOwnId, true);
  door.AddDefinition(L"A", L"Width");
  reference.AddAttribute(L"A", L"90");
  world.Fail("getName", 5);
  AddReference(reference, false);
  EXPECT_THAT(expected::Shown(properties), ElementsAre("A=90"));
  EXPECT_FALSE(filters[0].matched);
  EXPECT_FALSE(filters[1].matched);
}

TEST_F(BlocksByName, AReferenceWithoutAttributesMarksNothing) {
  Ask(L"Door");
  AddReference(reference, false);
  EXPECT_FALSE(filters[0].matched);
  EXPECT_THAT(world.Calls({"blockTableRecord"}), IsEmpty());
}

TEST_F(BlocksByName, AReferencesBlockIsClosed) {
  Ask(L"Door");
  reference.AddAttribute(L"A", L"90");
  AddReference(reference, false);
  EXPECT_EQ(Closings("block Door"), 1);
}

TEST(BlocksByNameWithoutMemory, RaiseTheComErrorAndLeakNothing) {
  const scripted::Entity* constant = nullptr;
  const scripted::Entity* reference = nullptr;
  outages::FailEachAllocation(
      [&](scripted::World& world) {
        scripted::Record& door = world.drawing.blocks.Add(L"Door");
        constant = &door.AddConstant(L"MAKER", L"Made by", L"Smith");
        scripted::Entity& shown = door.AddReference(nullptr);
        shown.AddAttribute(L"A", L"one");
        reference = &shown;
      },
      [&] {
        std::vector<ZDXEngine::_PropData> properties;
        std::vector<ZDXEngine::BlockFilterParam> filters(1);
        filters[0].blockName = L"Door";
        const ClosedObject<ZnDbAttributeDefinition> definition(
            OpenForRead<ZnDbAttributeDefinition>(scripted::IdOf(*constant)));
        AddConstantAttribute(properties, definition.get(), {}, filters, false);
        const ClosedObject<ZnDbBlockReference> shown(
            OpenForRead<ZnDbBlockReference>(scripted::IdOf(*reference)));
        AddReferenceAttributes(properties, shown.get(), {}, filters, false);
      });
}

}  // namespace

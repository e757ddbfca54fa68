// Which blocks of a drawing carry attributes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZDXEngine/BlockListing.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "support/scripted/ScriptedTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using ZDXEngine::BlockInfo;
using ZDXEngine::ListBlocksWithAttributes;

namespace {

// "Door: 2 references, 0 variations".
std::string Shown(const BlockInfo& block) {
  return scripted::Shown(block.name) + ": " + std::to_string(block.references) + " references, " +
         std::to_string(block.variations) + " variations";
}

class BlockListing : public scripted::ScriptedTest {
 protected:
  BlockListing() { modelSpace.layout = true; }

  static std::vector<BlockInfo> List() { return ListBlocksWithAttributes(L"C:\\a.dwg"); }
  static std::vector<std::string> Listed() {
    std::vector<std::string> words;
    for (const BlockInfo& block : List()) words.push_back(Shown(block));
    return words;
  }
  scripted::Record& AddBlock(std::wstring name) {
    scripted::Record& block = world.drawing.blocks.Add(std::move(name));
    block.AddDefinition(L"A");
    return block;
  }

  scripted::Record& modelSpace = world.drawing.blocks.Add(L"*Model_Space");
};

TEST_F(BlockListing, ADrawingWithoutBlocksHasNone) { EXPECT_THAT(List(), IsEmpty()); }

TEST_F(BlockListing, BlocksWithDefinitionsAreListedInTheTablesOrder) {
  AddBlock(L"Window");
  world.drawing.blocks.Add(L"Plain").Add(scripted::EntityKind::kText);
  AddBlock(L"Door");
  EXPECT_THAT(Listed(), ElementsAre("Window: 0 references, 0 variations",
                                    "Door: 0 references, 0 variations"));
}

TEST_F(BlockListing, ADefinitionIsToldWithAllThatItSays) {
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  door.AddDefinition(L"WIDTH", L"Width?", L"90");
  door.Add(scripted::EntityKind::kText);
  door.AddConstant(L"MAKER", L"", L"Smith");
  const std::vector<BlockInfo> blocks = List();
  ASSERT_THAT(blocks, SizeIs(1));
  ASSERT_THAT(blocks[0].definitions, SizeIs(2));
  EXPECT_EQ(blocks[0].definitions[0].tag, L"WIDTH");
  EXPECT_EQ(blocks[0].definitions[0].prompt, L"Width?");
  EXPECT_EQ(blocks[0].definitions[0].text, L"90");
  EXPECT_FALSE(blocks[0].definitions[0].isConstant);
  EXPECT_EQ(blocks[0].definitions[1].tag, L"MAKER");
  EXPECT_EQ(blocks[0].definitions[1].prompt, L"");
  EXPECT_EQ(blocks[0].definitions[1].text, L"Smith");
  EXPECT_TRUE(blocks[0].definitions[1].isConstant);
}

TEST_F(BlockListing, AClassBelowTheDefinitionsCounts) {
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  door.AddDefinition(L"A").className = L"ZnDbSpecialDefinition";
  EXPECT_THAT(Listed(), SizeIs(1));
}

TEST_F(BlockListing, ReferencesCountWhereverTheyStand) {
  scripted::Record& house = world.drawing.blocks.Add(L"House");
  scripted::Record& door = AddBlock(L"Door");
  door.AddReference(&modelSpace);
  door.AddReference(&house);
  door.AddReference(nullptr);
  EXPECT_THAT(Listed(), ElementsAre("Door: 3 references, 0 variations"));
}

TEST_F(BlockListing, LayoutsAreNotListed) {
  modelSpace.AddDefinition(L"A");
  EXPECT_THAT(List(), IsEmpty());
}

TEST_F(BlockListing, ADynamicBlockCountsTheReferencesOfItsCopiesWhichAreNotListed) {
  scripted::Record& early = AddBlock(L"*U1");
  scripted::Record& door = AddBlock(L"Door");
  scripted::Record& late = AddBlock(L"*U2");
  door.dynamic = true;
  door.copies = {&early, &late};
  door.AddReference(&modelSpace);
  early.AddReference(&modelSpace);
  late.AddReference(&modelSpace);
  late.AddReference(&modelSpace);
  EXPECT_THAT(Listed(), ElementsAre("Door: 1 references, 3 variations"));
}

TEST_F(BlockListing, AnAnonymousBlockThatIsNobodysCopyIsListed) {
  AddBlock(L"*U1").AddReference(&modelSpace);
  EXPECT_THAT(Listed(), ElementsAre("*U1: 1 references, 0 variations"));
}

TEST_F(BlockListing, TheCopiesOfABlockThatIsNotListedAreListedThemselves) {
  scripted::Record& copy = AddBlock(L"*U1");
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  door.dynamic = true;
  door.copies = {&copy};
  EXPECT_THAT(Listed(), ElementsAre("*U1: 0 references, 0 variations"));
}

TEST_F(BlockListing, ABlockThatIsNotDynamicHasNoVariations) {
  scripted::Record& copy = AddBlock(L"*U1");
  copy.AddReference(&modelSpace);
  AddBlock(L"Door").copies = {&copy};
  EXPECT_THAT(Listed(),
              ElementsAre("*U1: 1 references, 0 variations", "Door: 0 references, 0 variations"));
}

TEST_F(BlockListing, ReadsTheFileForReadingAloneIntoADatabaseOfItsOwn) {
  List();
  EXPECT_THAT(world.Calls({"ZnDbDatabase", "readDwgFile", "~ZnDbDatabase"}),
              ElementsAre("ZnDbDatabase(false, true)", "readDwgFile(C:\\a.dwg, 4, false, null)",
                          "~ZnDbDatabase(database 1)"));
}

TEST_F(BlockListing, AFileThatIsNotThereThrowsNotFound) {
  world.Fail("readDwgFile", 76);
  EXPECT_THROW(List(), ZDXEngine::NotFound);
  EXPECT_EQ(world.Count("~ZnDbDatabase"), 1);
}

TEST_F(BlockListing, WhatItMakesToAskForCopiesIsNotReleased) {
  AddBlock(L"Door");
  List();
  EXPECT_EQ(world.Count("ZnDbDynBlockTableRecord"), 1);
  EXPECT_EQ(world.Count("znHeapFree"), 0);
}

// What fails costs what it tells.
class BlockListingFailures : public BlockListing {
 protected:
  BlockListingFailures() {
    copy.AddReference(&modelSpace);
    door.dynamic = true;
    door.copies = {&copy};
    door.AddReference(&modelSpace);
  }
  scripted::Record& copy = AddBlock(L"*U1");
  scripted::Record& door = AddBlock(L"Door");
  scripted::Record& window = AddBlock(L"Window");
};

TEST_F(BlockListingFailures, AreNone) {
  EXPECT_THAT(Listed(), ElementsAre("Door: 1 references, 1 variations",
                                    "Window: 0 references, 0 variations"));
}

TEST_F(BlockListingFailures, ATableThatDoesNotOpenHasNoBlocks) {
  world.Fail("getSymbolTable", 5);
  EXPECT_THAT(List(), IsEmpty());
}

TEST_F(BlockListingFailures, ATableWithoutAnIteratorHasNoBlocks) {
  world.FailWithNull("blocks.newIterator", 5);
  EXPECT_THAT(List(), IsEmpty());
}

TEST_F(BlockListingFailures, ARecordThatDoesNotOpenIsNotListed) {
  world.Fail("zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)", 5);
  EXPECT_THAT(Listed(),
              ElementsAre("*U1: 1 references, 0 variations", "Window: 0 references, 0 variations"));
}

TEST_F(BlockListingFailures, ARecordWithoutAnIdIsNotListed) {
  world.Fail("getRecordId", 5, 4);
  EXPECT_THAT(Listed(), ElementsAre("Door: 1 references, 1 variations"));
}

TEST_F(BlockListingFailures, ANameThatCannotBeReadIsEmpty) {
  world.Fail("block Window.getName", 5);
  EXPECT_THAT(Listed(), Contains(": 0 references, 0 variations"));
}

TEST_F(BlockListingFailures, TextsOfADefinitionThatCannotBeReadAreEmpty) {
  window.entities.clear();
  window.AddDefinition(L"WIDTH", L"Width?", L"90");
  for (const char* text : {"tag", "prompt", "textString"}) world.Fail(text, 5);
  const std::vector<BlockInfo> blocks = List();
  ASSERT_THAT(blocks, SizeIs(2));
  EXPECT_EQ(blocks[1].definitions[0].tag, L"");
  EXPECT_EQ(blocks[1].definitions[0].prompt, L"");
  EXPECT_EQ(blocks[1].definitions[0].text, L"");
}

TEST_F(BlockListingFailures, ADefinitionThatDoesNotOpenIsNotTold) {
  window.AddDefinition(L"B");
  world.Fail("block Window iterator.getEntity", 5, 1);
  const std::vector<BlockInfo> blocks = List();
  ASSERT_THAT(blocks, SizeIs(2));
  ASSERT_THAT(blocks[1].definitions, SizeIs(1));
  EXPECT_EQ(blocks[1].definitions[0].tag, L"B");
}

TEST_F(BlockListingFailures, ABlockOfWhichNoDefinitionOpensIsNotListed) {
  world.Fail("block Window iterator.getEntity", 5);
  EXPECT_THAT(Listed(), ElementsAre("Door: 1 references, 1 variations"));
}

TEST_F(BlockListingFailures, ABlockWhoseEntitiesCannotBeHadIsNotListed) {
  world.FailWithNull("block Window.newIterator", 5);
  EXPECT_THAT(Listed(), ElementsAre("Door: 1 references, 1 variations"));
}

TEST_F(BlockListingFailures, ReferencesThatCannotBeHadAreNone) {
  world.FailWithNull("block Door.newBlockReferenceIdIterator", 5);
  EXPECT_THAT(Listed(), Contains("Door: 0 references, 1 variations"));
}

TEST_F(BlockListingFailures, ACopyThatDoesNotOpenHasNoReferences) {
  // The walk passes the copy first and asks for it the second time as the block's.
  world.Fail("zndbOpenObject(block *U1, ZnDbBlockTableRecord, 0, false)", 5, 2);
  EXPECT_THAT(Listed(), Contains("Door: 1 references, 0 variations"));
}

TEST_F(BlockListingFailures, WithoutItsCopiesABlockHasNoVariations) {
  world.Fail("getAnonymousBlockIds", 5);
  EXPECT_THAT(Listed(),
              ElementsAre("*U1: 1 references, 0 variations", "Door: 1 references, 0 variations",
                          "Window: 0 references, 0 variations"));
}

TEST_F(BlockListingFailures, AHeapWithoutABlockLeavesTheVariationsOut) {
  world.ReturnNull("znHeapAlloc");
  EXPECT_THAT(Listed(), Contains("Door: 1 references, 0 variations"));
}

}  // namespace

// A dynamic block, whose values stand in references of its anonymous copies.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "unit/properties/read/BlockTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class DynamicBlock : public scripted::BlockTest {
 protected:
  DynamicBlock() {
    Ask(L"Door");
    door.dynamic = true;
    door.copies = {&copy, &secondCopy};
    Refer(copy, modelSpace, L"of the first copy");
    Refer(secondCopy, modelSpace, L"of the second copy");
  }

  scripted::Record& house = world.drawing.blocks.Add(L"House");
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  scripted::Record& copy = world.drawing.blocks.Add(L"*U1");
  scripted::Record& secondCopy = world.drawing.blocks.Add(L"*U2");
};

TEST_F(DynamicBlock, GivesTheFirstReferenceOfItsFirstCopy) {
  Refer(copy, modelSpace, L"second reference");
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the first copy"));
}

TEST_F(DynamicBlock, ItsOwnReferenceGoesFirst) {
  Refer(door, house, L"its own");
  EXPECT_THAT(ReadValues(), ElementsAre("A=its own"));
  EXPECT_EQ(world.Count("isDynamicBlock"), 0);
}

TEST_F(DynamicBlock, ItsOwnReferenceGoesFirstEvenWithoutAttributes) {
  door.AddConstant(L"MAKER", L"", L"Smith");
  door.AddReference(&modelSpace);
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
  EXPECT_EQ(world.Count("isDynamicBlock"), 0);
}

TEST_F(DynamicBlock, IsAskedForItsCopiesIfItsOnlyReferencesDoNotOpen) {
  Refer(door, modelSpace, L"its own");
  world.Fail("zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the first copy"));
}

TEST_F(DynamicBlock, IsAskedForItsCopiesIfOneOfTheOthersDoesNotOpenAgain) {
  Refer(door, house, L"its own");
  world.Fail("zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)", 5, 2);
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the first copy"));
}

TEST_F(DynamicBlock, IsAskedForItsCopiesIfItsReferencesCannotBeHad) {
  Refer(door, modelSpace, L"its own");
  world.FailWithNull("block Door.newBlockReferenceIdIterator", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the first copy"));
}

TEST_F(DynamicBlock, TheOwnersOfACopysReferencesAreNotLookedAt) {
  copy.references.clear();
  Refer(copy, house, L"in a block");
  Refer(copy, modelSpace, L"in a layout");
  world.ForgetCalls();
  EXPECT_THAT(ReadValues(), ElementsAre("A=in a block"));
  EXPECT_EQ(world.Count("ownerId"), 0);
}

TEST_F(DynamicBlock, TheWalkGoesToTheCopyAndComesBack) {
  Read();
  std::vector<std::string> calls = world.Calls(
      {"ZnDbDynBlockTableRecord", "isDynamicBlock", "getAnonymousBlockIds", "seek", "getRecordId",
       "zndbOpenObject", "newBlockReferenceIdIterator", "getBlockReference", "attributeIterator"});
  calls.erase(calls.begin(), std::ranges::find(calls, "ZnDbDynBlockTableRecord(block Door)"));
  calls.resize(9);
  EXPECT_THAT(calls, ElementsAre("ZnDbDynBlockTableRecord(block Door)",
                                 "isDynamicBlock(block Door)", "getAnonymousBlockIds(block Door)",
                                 "blocks iterator.seek(block *U1)", "blocks iterator.getRecordId()",
                                 "zndbOpenObject(block *U1, ZnDbBlockTableRecord, 0, false)",
                                 "blocks iterator.seek(block Door)",
                                 "block *U1.newBlockReferenceIdIterator()",
                                 "block *U1 reference iterator.getBlockReference(0, false)"));
}

TEST_F(DynamicBlock, TheWalkGoesOnBehindTheBlock) {
  Ask(L"Gate", kOtherId);
  scripted::Record& gate = world.drawing.blocks.Add(L"Gate");
  Refer(gate, modelSpace, L"of the gate");
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the first copy", "A=of the gate"));
  EXPECT_EQ(std::ranges::count(world.Calls({"getName"}), "block Door.getName()"), 1);
  EXPECT_EQ(std::ranges::count(world.Calls({"getName"}), "block *U1.getName()"), 1);
}

TEST_F(DynamicBlock, ACopyThatStandsBeforeTheBlockIsReachedToo) {
  door.copies = {&house};
  Refer(house, modelSpace, L"of the house");
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the house"));
  EXPECT_EQ(std::ranges::count(world.Calls({"getName"}), "block House.getName()"), 1);
}

TEST_F(DynamicBlock, TheCopyItsReferenceAndItsIteratorAreGivenBack) {
  Read();
  EXPECT_EQ(Closings("block *U1"), 2) << "once here and once as the walk passes it";
  EXPECT_EQ(Closings("reference 1 of *U1"), 2) << "by both who have it";
  EXPECT_THAT(world.Calls({"delete"}), Contains("block *U1 reference iterator.delete()"));
}

TEST_F(DynamicBlock, WhatAsksForTheCopiesIsMadeOnTheLibrarysHeapAndNotReleased) {
  Read();
  EXPECT_EQ(world.Count("ZnDbDynBlockTableRecord"), 1);
  EXPECT_EQ(world.Count("znHeapAlloc"), 1);
  EXPECT_EQ(world.Count("znHeapFree"), 0);
}

TEST_F(DynamicBlock, AHeapWithoutABlockLeavesTheCopiesOut) {
  Ask(L"House", kOtherId);
  Refer(house, modelSpace, L"of the house");
  world.ReturnNull("znHeapAlloc");
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the house"));
  EXPECT_EQ(world.Count("isDynamicBlock"), 0);
}

TEST_F(DynamicBlock, ABlockThatIsNotDynamicHasNoCopies) {
  door.dynamic = false;
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_EQ(world.Count("getAnonymousBlockIds"), 0);
}

TEST_F(DynamicBlock, WithoutACopyTheWalkStaysWhereItIs) {
  door.copies.clear();
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_EQ(world.Count("seek"), 0);
}

TEST_F(DynamicBlock, CopiesThatComeWithAFailureAreNone) {
  world.Fail("getAnonymousBlockIds", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_EQ(world.Count("seek"), 0);
}

TEST_F(DynamicBlock, OnlyTheFirstCopyIsTried) {
  copy.references.clear();
  EXPECT_THAT(ReadValues(), IsEmpty());
}

TEST_F(DynamicBlock, ACopyThatIsNotInTheTableIsNotRead) {
  world.Fail("blocks iterator.seek(block *U1)", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_THAT(world.Calls({"seek"}), ElementsAre("blocks iterator.seek(block *U1)"));
  EXPECT_THAT(world.Calls({"getName"}), Contains("block *U2.getName()")) << "the walk goes on";
}

TEST_F(DynamicBlock, ACopyWithoutAnIdIsNotReadAndTheWalkComesBack) {
  // 1 model space, 2 the house, 3 the door, 4 the copy.
  world.Fail("blocks iterator.getRecordId", 5, 4);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_THAT(world.Calls({"seek"}),
              ElementsAre("blocks iterator.seek(block *U1)", "blocks iterator.seek(block Door)"));
}

TEST_F(DynamicBlock, ACopyThatDoesNotOpenIsNotReadAndTheWalkComesBack) {
  world.Fail("zndbOpenObject(block *U1, ZnDbBlockTableRecord, 0, false)", 5, 1);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_THAT(world.Calls({"seek"}),
              ElementsAre("blocks iterator.seek(block *U1)", "blocks iterator.seek(block Door)"));
  EXPECT_EQ(std::ranges::count(world.Calls({"getName"}), "block Door.getName()"), 1);
}

TEST_F(DynamicBlock, ACopyWhoseReferencesCannotBeHadIsClosed) {
  world.FailWithNull("block *U1.newBlockReferenceIdIterator", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_EQ(Closings("block *U1"), 2);
}

TEST_F(DynamicBlock, AReferenceOfTheCopyThatDoesNotOpenEndsTheSearch) {
  Refer(copy, modelSpace, L"second reference");
  world.Fail("getBlockReference", 5, 1);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_EQ(world.Count("getBlockReference"), 1);
}

TEST_F(DynamicBlock, TheCopysValuesAreNamedByItsOwnDefinitions) {
  filters[0].usePrompt = true;
  door.AddDefinition(L"A", L"of the block");
  copy.AddDefinition(L"A", L"of the copy");
  EXPECT_THAT(ReadValues(), ElementsAre("of the copy=of the first copy"));
}

TEST_F(DynamicBlock, ItsConstantsComeBeforeTheCopysValues) {
  door.AddConstant(L"MAKER", L"", L"Smith");
  copy.AddConstant(L"COPIED", L"", L"not this");
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith", "A=of the first copy"));
}

TEST_F(DynamicBlock, AFilterMayNameTheCopyItself) {
  filters.clear();
  Ask(L"*U2");
  EXPECT_THAT(ReadValues(), ElementsAre("A=of the second copy"));
}

}  // namespace

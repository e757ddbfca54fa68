// Which of a block's references is read: one alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "unit/properties/read/BlockTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ReferenceChoice : public scripted::BlockTest {
 protected:
  ReferenceChoice() {
    paperSpace.layout = true;
    Ask(L"Door");
  }

  scripted::Record& paperSpace = world.drawing.blocks.Add(L"*Paper_Space");
  scripted::Record& house = world.drawing.blocks.Add(L"House");
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
  scripted::Record& laterLayout = world.drawing.blocks.Add(L"*Paper_Space0");
};

TEST_F(ReferenceChoice, OfTwoInModelSpaceTheFirstIsRead) {
  Refer(door, modelSpace, L"first");
  Refer(door, modelSpace, L"second");
  EXPECT_THAT(ReadValues(), ElementsAre("A=first"));
}

TEST_F(ReferenceChoice, OneInALayoutGoesBeforeOneInABlock) {
  Refer(door, house, L"in a block");
  Refer(door, paperSpace, L"in a layout");
  EXPECT_THAT(ReadValues(), ElementsAre("A=in a layout"));
}

TEST_F(ReferenceChoice, TheIteratorsOrderDecidesBetweenLayouts) {
  Refer(door, paperSpace, L"paper");
  Refer(door, modelSpace, L"model");
  EXPECT_THAT(ReadValues(), ElementsAre("A=paper"));
}

TEST_F(ReferenceChoice, WithoutOneInALayoutTheFirstOfTheOthersIsRead) {
  Refer(door, house, L"first");
  Refer(door, house, L"second");
  EXPECT_THAT(ReadValues(), ElementsAre("A=first"));
}

TEST_F(ReferenceChoice, ALayoutThatStandsBehindTheBlockIsNotKnownYet) {
  laterLayout.layout = true;
  Refer(door, house, L"in a block");
  Refer(door, laterLayout, L"in a later layout");
  EXPECT_THAT(ReadValues(), ElementsAre("A=in a block"));
}

TEST_F(ReferenceChoice, OneInALaterLayoutIsOneOfTheOthers) {
  laterLayout.layout = true;
  Refer(door, laterLayout, L"in a later layout");
  EXPECT_THAT(ReadValues(), ElementsAre("A=in a later layout"));
}

TEST_F(ReferenceChoice, OneWhoseOwnerIsNotToldIsOneOfTheOthers) {
  door.AddReference(nullptr).AddAttribute(L"A", L"nowhere");
  Refer(door, modelSpace, L"model");
  EXPECT_THAT(ReadValues(), ElementsAre("A=model"));
  door.references.pop_back();
  properties.clear();
  EXPECT_THAT(ReadValues(), ElementsAre("A=nowhere"));
}

TEST_F(ReferenceChoice, LayoutsAreKnownFromTheirOpeningOnWhateverTheirName) {
  world.Fail("block *Model_Space.getName", 5);
  Refer(door, house, L"in a block");
  Refer(door, modelSpace, L"model");
  EXPECT_THAT(ReadValues(), ElementsAre("A=model"));
}

TEST_F(ReferenceChoice, ALayoutThatDidNotOpenIsNotKnown) {
  world.Fail("zndbOpenObject(block *Model_Space, ZnDbBlockTableRecord, 0, false)", 5);
  Refer(door, house, L"in a block");
  Refer(door, modelSpace, L"model");
  EXPECT_THAT(ReadValues(), ElementsAre("A=in a block"));
}

TEST_F(ReferenceChoice, TheOneInALayoutEndsTheSearchAndIsClosedByBothWhoHaveIt) {
  Refer(door, house, L"in a block");
  Refer(door, modelSpace, L"model");
  Refer(door, modelSpace, L"never looked at");
  Read();
  EXPECT_THAT(world.Calls({"getBlockReferenceId"}),
              ElementsAre("block Door reference iterator.getBlockReferenceId()",
                          "block Door reference iterator.getBlockReferenceId()"));
  EXPECT_EQ(Closings("reference 1 of Door"), 1);
  EXPECT_EQ(Closings("reference 2 of Door"), 2);
  EXPECT_EQ(Closings("reference 3 of Door"), 0);
}

TEST_F(ReferenceChoice, EachIsOpenedForReadByItsIdAndAskedForItsOwner) {
  Refer(door, house, L"in a block");
  Refer(door, modelSpace, L"model");
  Read();
  std::vector<std::string> calls =
      world.Calls({"newBlockReferenceIdIterator", "getBlockReferenceId", "zndbOpenObject",
                   "ownerId", "attributeIterator"});
  calls.erase(calls.begin(), std::ranges::find(calls, "block Door.newBlockReferenceIdIterator()"));
  calls.resize(8);
  EXPECT_THAT(
      calls,
      ElementsAre("block Door.newBlockReferenceIdIterator()",
                  "block Door reference iterator.getBlockReferenceId()",
                  "zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)",
                  "reference 1 of Door.ownerId()",
                  "block Door reference iterator.getBlockReferenceId()",
                  "zndbOpenObject(reference 2 of Door, ZnDbBlockReference, 0, false)",
                  "reference 2 of Door.ownerId()", "reference 2 of Door.attributeIterator()"));
}

TEST_F(ReferenceChoice, OneOfTheOthersIsOpenedAgainAndClosedEachTime) {
  Refer(door, house, L"first");
  Refer(door, house, L"second");
  Read();
  EXPECT_EQ(std::ranges::count(world.Calls({"zndbOpenObject"}),
                               "zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)"),
            2);
  EXPECT_EQ(Closings("reference 1 of Door"), 3);
  EXPECT_EQ(Closings("reference 2 of Door"), 1);
}

TEST_F(ReferenceChoice, OneThatDoesNotOpenIsPassedOver) {
  Refer(door, modelSpace, L"first");
  Refer(door, modelSpace, L"second");
  world.Fail("zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=second"));
}

TEST_F(ReferenceChoice, OneThatDoesNotOpenIsNoneOfTheOthers) {
  Refer(door, house, L"first");
  Refer(door, house, L"second");
  world.Fail("zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)", 5, 1);
  EXPECT_THAT(ReadValues(), ElementsAre("A=second"));
}

TEST_F(ReferenceChoice, OneWithoutAnIdIsPassedOver) {
  Refer(door, modelSpace, L"first");
  Refer(door, modelSpace, L"second");
  world.Fail("getBlockReferenceId", 5, 1);
  EXPECT_THAT(ReadValues(), ElementsAre("A=second"));
}

TEST_F(ReferenceChoice, IfTheFirstOfTheOthersDoesNotOpenAgainNoneIsTried) {
  Refer(door, house, L"first");
  Refer(door, house, L"second");
  world.Fail("zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)", 5, 2);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_THAT(world.Calls({"attributeIterator"}), IsEmpty());
}

TEST_F(ReferenceChoice, IfNoneOpensNothingIsRead) {
  Refer(door, modelSpace, L"first");
  Refer(door, house, L"second");
  world.Fail("zndbOpenObject(reference 1 of Door, ZnDbBlockReference, 0, false)", 5);
  world.Fail("zndbOpenObject(reference 2 of Door, ZnDbBlockReference, 0, false)", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
}

TEST_F(ReferenceChoice, OneWithoutAttributesIsChosenAllTheSame) {
  door.AddReference(&modelSpace);
  Refer(door, modelSpace, L"second");
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_EQ(Closings("reference 1 of Door"), 1);
  EXPECT_THAT(world.Calls({"delete"}), Contains("reference 1 of Door iterator.delete()"));
}

TEST_F(ReferenceChoice, OneWithoutAnIteratorHasNoAttributes) {
  Refer(door, modelSpace, L"first");
  world.ReturnNull("attributeIterator");
  EXPECT_THAT(ReadValues(), IsEmpty());
}

TEST_F(ReferenceChoice, AttributesAreWalkedForwardOpenedForReadAndClosed) {
  Refer(door, modelSpace, L"one").AddAttribute(L"B", L"two");
  Read();
  std::vector<std::string> calls = world.Calls(
      {"attributeIterator", "objectId", "openAttribute", "tag", "step", "close", "delete"});
  calls.erase(calls.begin(), std::ranges::find(calls, "reference 1 of Door.attributeIterator()"));
  calls.resize(14);
  EXPECT_THAT(calls,
              ElementsAre("reference 1 of Door.attributeIterator()",
                          "reference 1 of Door iterator.objectId()",
                          "reference 1 of Door.openAttribute(A of reference 1 of Door, 0, false)",
                          "A of reference 1 of Door.tag()", "A of reference 1 of Door.close()",
                          "reference 1 of Door iterator.step(false, true)",
                          "reference 1 of Door iterator.objectId()",
                          "reference 1 of Door.openAttribute(B of reference 1 of Door, 0, false)",
                          "B of reference 1 of Door.tag()", "B of reference 1 of Door.close()",
                          "reference 1 of Door iterator.step(false, true)",
                          "reference 1 of Door iterator.delete()", "reference 1 of Door.close()",
                          "reference 1 of Door.close()"));
}

TEST_F(ReferenceChoice, AnAttributeThatDoesNotOpenIsPassedOver) {
  Refer(door, modelSpace, L"one").AddAttribute(L"B", L"two");
  world.Fail("openAttribute", 5, 1);
  EXPECT_THAT(ReadValues(), ElementsAre("B=two"));
}

TEST_F(ReferenceChoice, TwoAttributesOfOneTagGiveRecordsOfOneName) {
  Refer(door, modelSpace, L"one").AddAttribute(L"A", L"two");
  EXPECT_THAT(ReadValues(), ElementsAre("A=one", "A=two"));
}

}  // namespace

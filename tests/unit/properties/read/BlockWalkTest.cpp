// Which blocks are read, by which filter, and in which records their values come.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "unit/properties/Outages.h"
#include "unit/properties/read/BlockTest.h"

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using ZDXEngine::_PropData;

namespace {

class BlockWalk : public scripted::BlockTest {
 protected:
  scripted::Record& door = world.drawing.blocks.Add(L"Door");
};

TEST_F(BlockWalk, WithoutADatabaseThereIsNothing) {
  Ask(L"Door");
  ZDXEngine::GetBlockAttributes(filters, properties, nullptr);
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(BlockWalk, ANamedBlocksReferenceGivesItsAttributesInTheirOrder) {
  Ask(L"Door");
  scripted::Entity& reference = Refer(door, modelSpace, L"first");
  reference.AddAttribute(L"B", L"second");
  EXPECT_THAT(ReadValues(), ElementsAre("A=first", "B=second"));
}

TEST_F(BlockWalk, EachValueGivesTwoAdjacentRecordsTheSecondUnderTheEnginesSet) {
  Ask(L"Door");
  Refer(door, modelSpace, L"one").AddAttribute(L"B", L"two");
  Read();
  ASSERT_THAT(properties, SizeIs(4));
  EXPECT_THAT(expected::Shown(properties), ElementsAre("A=one", "A=one", "B=two", "B=two"));
  std::vector<std::wstring> sets;
  for (const _PropData& property : properties) sets.push_back(property.formatId);
  EXPECT_THAT(sets, ElementsAre(kOwnSet, expected::kStorageSet, kOwnSet, expected::kStorageSet));
}

TEST_F(BlockWalk, EveryRecordIsATextOfItsOwn) {
  Ask(L"Door");
  Refer(door, modelSpace, L"one");
  Read();
  ASSERT_THAT(properties, SizeIs(2));
  for (const _PropData& property : properties) {
    EXPECT_EQ(property.typeCode, 2);
    EXPECT_EQ(property.value.vt, VT_BSTR);
  }
  EXPECT_NE(properties[0].value.bstrVal, properties[1].value.bstrVal);
}

TEST_F(BlockWalk, AConstantDefinitionGivesTwoRecordsToo) {
  Ask(L"Door");
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  Read();
  EXPECT_THAT(expected::Shown(properties), ElementsAre("MAKER=Smith", "MAKER=Smith"));
  EXPECT_THAT(Under(kOwnSet), ElementsAre("MAKER=Smith"));
}

TEST_F(BlockWalk, ASetThatIsKnownByNumberNamesTheFirstRecordByTheNumber) {
  Ask(L"Door", ZDXEngine::FMTID_SummaryInformation);
  Refer(door, modelSpace, L"one");
  Read();
  EXPECT_THAT(expected::Shown(properties), ElementsAre("19=one", "A=one"));
}

TEST_F(BlockWalk, TheSetOfDocumentsIsKnownByNumberToo) {
  Ask(L"Door", ZDXEngine::FMTID_DocSummaryInformation, true);
  door.AddConstant(L"MAKER", L"Made by", L"Smith");
  Read();
  EXPECT_THAT(expected::Shown(properties), ElementsAre("19=Smith", "Made by=Smith"));
}

TEST_F(BlockWalk, AValueWithoutATagIsKnownByTheNumber) {
  Ask(L"Door");
  door.AddReference(&modelSpace).AddAttribute(L"", L"one");
  Read();
  EXPECT_THAT(expected::Shown(properties), ElementsAre("19=one", "19=one"));
}

TEST_F(BlockWalk, ABlockThatNoFilterNamesIsPassedOver) {
  Ask(L"Window");
  door.AddConstant(L"MAKER", L"", L"Smith");
  Refer(door, modelSpace, L"one");
  Read();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(world.Count("newIterator"), 1);
  EXPECT_EQ(world.Count("newBlockReferenceIdIterator"), 0);
}

TEST_F(BlockWalk, NamesAreComparedWithoutRegardToCase) {
  scripted::Record& gate = world.drawing.blocks.Add(L"T\u00DCR");
  Ask(L"dOOR");
  Ask(L"t\u00FCr", kOtherId);
  Refer(door, modelSpace, L"one");
  Refer(gate, modelSpace, L"two");
  EXPECT_THAT(ReadValues(), ElementsAre("A=one", "A=two"));
}

TEST_F(BlockWalk, NamesAreComparedByTheUtilitiesWithTheRuleThatIgnoresCase) {
  Ask(L"dOOR");
  Read();
  EXPECT_THAT(world.Calls({"Order"}), ElementsAre("Order(dOOR, Door, 0, 1)"));
}

TEST_F(BlockWalk, ANameThatOnlyBeginsLikeTheFiltersIsAnother) {
  Ask(L"Doo");
  Ask(L"Door2");
  Refer(door, modelSpace, L"one");
  Read();
  EXPECT_THAT(properties, IsEmpty());
}

TEST_F(BlockWalk, OfTwoFiltersWithOneNameOnlyTheFirstCounts) {
  Ask(L"Door", kOwnId);
  Ask(L"DOOR", kOtherId);
  door.AddConstant(L"MAKER", L"", L"Smith");
  Refer(door, modelSpace, L"one");
  Read();
  EXPECT_THAT(properties, SizeIs(4));
  EXPECT_THAT(Under(kOwnSet), ElementsAre("MAKER=Smith", "A=one"));
  EXPECT_THAT(Under(kOtherSet), IsEmpty());
}

TEST_F(BlockWalk, EachBlockIsPublishedUnderItsOwnFiltersSetInTheTablesOrder) {
  scripted::Record& window = world.drawing.blocks.Add(L"Window");
  Ask(L"Window", kOtherId);
  Ask(L"Door", kOwnId);
  Refer(door, modelSpace, L"one");
  Refer(window, modelSpace, L"two");
  EXPECT_THAT(ReadValues(), ElementsAre("A=one", "A=two"));
  EXPECT_THAT(Under(kOwnSet), ElementsAre("A=one"));
  EXPECT_THAT(Under(kOtherSet), ElementsAre("A=two"));
}

TEST_F(BlockWalk, AFilterThatNamesALayoutYieldsNothing) {
  Ask(L"*Model_Space");
  modelSpace.AddConstant(L"MAKER", L"", L"Smith");
  Refer(modelSpace, modelSpace, L"one");
  Read();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_THAT(world.Calls({"getName"}), Not(Contains("block *Model_Space.getName()")));
}

TEST_F(BlockWalk, ABlockNamedAsALayoutThatIsNoneIsRead) {
  modelSpace.layout = false;
  Ask(L"*Model_Space");
  modelSpace.AddConstant(L"MAKER", L"", L"Smith");
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(BlockWalk, ABlockWithoutReferencesAndConstantsYieldsNothing) {
  Ask(L"Door");
  door.AddDefinition(L"A", L"prompt", L"text");
  Read();
  EXPECT_THAT(properties, IsEmpty());
}

TEST_F(BlockWalk, ABlockWithoutReferencesYieldsItsConstants) {
  Ask(L"Door");
  door.AddConstant(L"MAKER", L"", L"Smith");
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(BlockWalk, ConstantsComeInStoredOrderBeforeTheAttributes) {
  Ask(L"Door");
  door.AddConstant(L"C2", L"", L"two");
  door.AddDefinition(L"A", L"", L"not this");
  door.AddConstant(L"C1", L"", L"one");
  Refer(door, modelSpace, L"this");
  EXPECT_THAT(ReadValues(), ElementsAre("C2=two", "C1=one", "A=this"));
}

TEST_F(BlockWalk, OnlyDefinitionsAreConstants) {
  Ask(L"Door");
  door.Add(scripted::EntityKind::kPlain);
  door.Add(scripted::EntityKind::kText).constant = true;
  door.Add(scripted::EntityKind::kMText);
  scripted::Entity& attribute = door.Add(scripted::EntityKind::kAttribute);
  attribute.constant = true;
  door.Add(scripted::EntityKind::kReference);
  door.Add(scripted::EntityKind::kDefinition).hasClass = false;
  Read();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(world.Count("isConstant"), 0);
}

TEST_F(BlockWalk, AConstantOfAClassBelowTheDefinitionsCounts) {
  Ask(L"Door");
  door.AddConstant(L"MAKER", L"", L"Smith").className = L"ZnDbSpecialDefinition";
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith"));
}

TEST_F(BlockWalk, TheFiltersStayAsTheyAre) {
  Ask(L"Door");
  Refer(door, modelSpace, L"one");
  Read();
  ASSERT_THAT(filters, SizeIs(1));
  EXPECT_FALSE(filters[0].matched);
  EXPECT_EQ(filters[0].blockName, L"Door");
}

TEST_F(BlockWalk, WhatIsInTheListAlreadyStays) {
  properties.emplace_back().name = L"before";
  Ask(L"Door");
  Refer(door, modelSpace, L"one");
  Read();
  ASSERT_THAT(properties, SizeIs(3));
  EXPECT_EQ(properties[0].name, L"before");
}

TEST_F(BlockWalk, TheTableIsOpenedForReadWalkedFromTheBeginningAndClosedBehindItsIterator) {
  Ask(L"Nothing");
  Read();
  EXPECT_THAT(world.Calls({"getSymbolTable", "newIterator", "done", "getRecordId", "zndbOpenObject",
                           "isLayout", "getName", "step", "close", "delete"}),
              ElementsAre("getSymbolTable(ZnDbBlockTable, 0)", "blocks.newIterator(true, true)",
                          "blocks iterator.done()", "blocks iterator.getRecordId()",
                          "zndbOpenObject(block *Model_Space, ZnDbBlockTableRecord, 0, false)",
                          "block *Model_Space.isLayout()", "blocks iterator.step(true, true)",
                          "block *Model_Space.close()", "blocks iterator.done()",
                          "blocks iterator.getRecordId()",
                          "zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)",
                          "block Door.isLayout()", "block Door.getName()",
                          "blocks iterator.step(true, true)", "block Door.close()",
                          "blocks iterator.done()", "blocks iterator.delete()", "blocks.close()"));
}

TEST_F(BlockWalk, ErasedBlocksAreSkipped) {
  Ask(L"Door");
  door.erased = true;
  Refer(door, modelSpace, L"one");
  Read();
  EXPECT_THAT(properties, IsEmpty());
}

TEST_F(BlockWalk, AConstantsEntityIsOpenedForReadAndClosedByBothWhoHaveIt) {
  Ask(L"Door");
  door.AddConstant(L"MAKER", L"", L"Smith");
  door.AddDefinition(L"A");
  Read();
  EXPECT_THAT(
      world.Calls({"newIterator", "getEntity", "isConstant", "textString"}),
      ElementsAre("blocks.newIterator(true, true)", "block Door.newIterator(true, true)",
                  "block Door iterator.getEntity(0, false)",
                  "definition MAKER of Door.isConstant()", "definition MAKER of Door.textString()",
                  "block Door iterator.getEntity(0, false)", "definition A of Door.isConstant()"));
  EXPECT_EQ(Closings("definition MAKER of Door"), 2);
  EXPECT_EQ(Closings("definition A of Door"), 1);
  EXPECT_THAT(world.Calls({"step"}), Contains("block Door iterator.step(true, true)"));
}

TEST_F(BlockWalk, NothingIsOpenedForWriting) {
  Ask(L"Door", kOwnId, true);
  door.AddConstant(L"MAKER", L"", L"Smith");
  door.AddDefinition(L"A");
  Refer(door, modelSpace, L"one");
  Read();
  for (const std::string& call : world.Calls({"zndbOpenObject", "getEntity", "openAttribute"})) {
    EXPECT_TRUE(call.ends_with("0, false)")) << call;
  }
}

// What fails is passed over, and the rest comes.
class BlockWalkFailures : public BlockWalk {
 protected:
  BlockWalkFailures() {
    Ask(L"Door");
    Ask(L"Window", kOtherId);
    door.AddConstant(L"MAKER", L"", L"Smith");
    Refer(door, modelSpace, L"one");
    Refer(window, modelSpace, L"two");
  }
  scripted::Record& window = world.drawing.blocks.Add(L"Window");
};

TEST_F(BlockWalkFailures, AreNone) {
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith", "A=one", "A=two"));
}

TEST_F(BlockWalkFailures, ATableThatDoesNotOpenGivesNothing) {
  world.Fail("getSymbolTable", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
}

TEST_F(BlockWalkFailures, ATableWithoutAnIteratorIsClosed) {
  world.FailWithNull("blocks.newIterator", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_THAT(world.Calls({"close"}), ElementsAre("blocks.close()"));
}

TEST_F(BlockWalkFailures, AnIteratorOfTheTableThatComesWithAFailureIsDeletedUnused) {
  world.Fail("blocks.newIterator", 5);
  EXPECT_THAT(ReadValues(), IsEmpty());
  EXPECT_THAT(world.Calls({"done"}), IsEmpty());
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("blocks iterator.delete()"));
}

TEST_F(BlockWalkFailures, ANullIteratorOfTheTableIsAFailureToo) {
  world.ReturnNull("blocks.newIterator");
  EXPECT_THAT(ReadValues(), IsEmpty());
}

TEST_F(BlockWalkFailures, ARecordWithoutAnIdIsSteppedOver) {
  world.Fail("blocks iterator.getRecordId", 5, 2);
  EXPECT_THAT(ReadValues(), ElementsAre("A=two"));
  EXPECT_THAT(world.Calls({"zndbOpenObject"}),
              Not(Contains("zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)")));
}

TEST_F(BlockWalkFailures, ARecordThatDoesNotOpenIsSteppedOver) {
  world.Fail("zndbOpenObject(block Door, ZnDbBlockTableRecord, 0, false)", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=two"));
}

TEST_F(BlockWalkFailures, ARecordWithoutANameIsSteppedOverAndClosed) {
  world.Fail("block Door.getName", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=two"));
  EXPECT_THAT(world.Calls({"close"}), Contains("block Door.close()"));
}

TEST_F(BlockWalkFailures, ARecordWhoseNameCannotBeReadIsNoneWithoutAName) {
  Ask(L"");
  world.Fail("block Door.getName", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=two"));
}

TEST_F(BlockWalkFailures, ABlockWhoseEntitiesCannotBeHadGivesItsAttributes) {
  world.FailWithNull("block Door.newIterator", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=one", "A=two"));
}

TEST_F(BlockWalkFailures, AnIteratorOfEntitiesThatComesWithAFailureIsDeletedUnused) {
  world.Fail("block Door.newIterator", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("A=one", "A=two"));
  EXPECT_THAT(world.Calls({"delete"}), Contains("block Door iterator.delete()"));
  EXPECT_THAT(world.Calls({"getEntity"}), Each(Not("block Door iterator.getEntity(0, false)")));
}

TEST_F(BlockWalkFailures, AnEntityThatDoesNotOpenIsPassedOver) {
  door.AddConstant(L"SECOND", L"", L"Jones");
  world.Fail("block Door iterator.getEntity", 5, 1);
  EXPECT_THAT(ReadValues(), ElementsAre("SECOND=Jones", "A=one", "A=two"));
}

TEST_F(BlockWalkFailures, ABlockWhoseReferencesCannotBeHadGivesItsConstants) {
  world.FailWithNull("block Door.newBlockReferenceIdIterator", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith", "A=two"));
}

TEST_F(BlockWalkFailures, AnIteratorOfReferencesThatComesWithAFailureIsDeletedUnused) {
  world.Fail("block Door.newBlockReferenceIdIterator", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith", "A=two"));
  EXPECT_THAT(world.Calls({"delete"}), Contains("block Door reference iterator.delete()"));
}

TEST_F(BlockWalkFailures, AFailureToCloseIsIgnored) {
  world.Fail("close", 5);
  EXPECT_THAT(ReadValues(), ElementsAre("MAKER=Smith", "A=one", "A=two"));
}

TEST_F(BlockWalkFailures, WhatTheLibraryThrowsComesOutAndNothingStaysOpen) {
  filters[0].usePrompt = true;
  door.AddDefinition(L"A", L"Width");
  window.references.clear();
  window.dynamic = true;
  window.copies = {&door};
  for (const char* call :
       {"isLayout", "getName", "newIterator", "getEntity", "isConstant", "textString", "ownerId",
        "attributeIterator", "openAttribute", "isMTextAttribute", "getEntityId", "prompt",
        "ZnDbDynBlockTableRecord", "getAnonymousBlockIds", "seek", "getBlockReference"}) {
    world.ForgetScripts();
    world.Throw(call);
    EXPECT_THROW(Read(), scripted::Fault) << call;
  }
}

TEST(BlockWalkWithoutMemory, RaisesTheComErrorAndLeaksNothing) {
  outages::FailEachAllocation(
      [](scripted::World& world) {
        scripted::Record& modelSpace = world.drawing.blocks.Add(L"*Model_Space");
        modelSpace.layout = true;
        scripted::Record& door = world.drawing.blocks.Add(L"Door");
        door.AddConstant(L"MAKER", L"Made by", L"Smith");
        door.AddDefinition(L"A", L"Width", L"");
        scripted::Entity& inModelSpace = door.AddReference(&modelSpace);
        inModelSpace.AddAttribute(L"A", L"one");
        inModelSpace.AddAttribute(L"B", L"a;b").multiLine = true;
        scripted::Record& window = world.drawing.blocks.Add(L"Window");
        window.AddReference(&door).AddAttribute(L"A", L"two");
        scripted::Record& copy = world.drawing.blocks.Add(L"*U1");
        copy.AddReference(&modelSpace).AddAttribute(L"A", L"three");
        scripted::Record& gate = world.drawing.blocks.Add(L"Gate");
        gate.dynamic = true;
        gate.copies = {&copy};
      },
      [] {
        ZnDbDatabase database(false, true);
        std::vector<_PropData> properties;
        std::vector<ZDXEngine::BlockFilterParam> filters(3);
        filters[0].blockName = L"Door";
        filters[1].blockName = L"Window";
        filters[2].blockName = L"Gate";
        ZDXEngine::GetBlockAttributes(filters, properties, &database);
      });
}

}  // namespace

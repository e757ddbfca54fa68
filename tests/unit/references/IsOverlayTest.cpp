// Whether a block stands for an overlaid drawing.
#include "unit/references/ReferencesTest.h"

using references::Manager;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Overlay : public references::ReferencesTest {
 protected:
  scripted::Record& AddBlock(const wchar_t* name, std::uint64_t handle, bool overlay) {
    scripted::Record& block = world.drawing.blocks.Add(name);
    block.handle = handle;
    block.overlay = overlay;
    return block;
  }
  bool Ask(std::uint64_t id) {
    world.ForgetCalls();
    ZnDbDatabase* drawing = &database;
    return Manager().IsOverlay(drawing, id);
  }

  ZnDbDatabase database{false, true};
};

TEST_F(Overlay, ReadsTheBlocksFromTheFirstToTheOneThatAnswers) {
  AddBlock(L"A", 41, true);
  AddBlock(L"B", 42, true);
  AddBlock(L"C", 43, true);
  EXPECT_TRUE(Ask(42));
  EXPECT_THAT(
      world.Calls(),
      ElementsAre("getSymbolTable(ZnDbBlockTable, 0)", "blocks.newIterator(true, true)",
                  "blocks iterator.start(true, true)", "blocks iterator.done()",
                  "blocks iterator.getRecordId()",
                  "zndbOpenObject(block A, ZnDbBlockTableRecord, 0, false)", "block A.objectId()",
                  "nonForwardedHandle(block A)", "block A.objectId()", "block A.close()",
                  "blocks iterator.step(true, true)", "blocks iterator.done()",
                  "blocks iterator.getRecordId()",
                  "zndbOpenObject(block B, ZnDbBlockTableRecord, 0, false)", "block B.objectId()",
                  "nonForwardedHandle(block B)", "block B.isFromOverlayReference()",
                  "block B.objectId()", "block B.close()", "blocks iterator.delete()",
                  "blocks.objectId()", "blocks.close()"));
}

TEST_F(Overlay, IsFalseForABlockThatIsNotFromOne) {
  AddBlock(L"A", 42, false);
  EXPECT_FALSE(Ask(42));
}

TEST_F(Overlay, IsFalseForAHandleThatNoBlockHas) {
  AddBlock(L"A", 42, true);
  EXPECT_FALSE(Ask(43));
}

TEST_F(Overlay, IsFalseWithoutBlocks) { EXPECT_FALSE(Ask(42)); }

TEST_F(Overlay, ABlockOfThatHandleThatIsNotFromOneDoesNotEndTheSearch) {
  AddBlock(L"A", 42, false);
  AddBlock(L"B", 42, true);
  EXPECT_TRUE(Ask(42));
}

TEST_F(Overlay, TakesHandlesOfSixtyFourBits) {
  AddBlock(L"A", 0xF00000000000002Au, true);
  EXPECT_TRUE(Ask(0xF00000000000002Au));
  EXPECT_FALSE(Ask(0x2A));
}

TEST_F(Overlay, PassesOverErasedBlocks) {
  AddBlock(L"A", 42, true).erased = true;
  AddBlock(L"B", 43, true);
  EXPECT_FALSE(Ask(42));
  EXPECT_TRUE(Ask(43));
}

TEST_F(Overlay, IsFalseWithoutADatabase) {
  AddBlock(L"A", 42, true);
  world.ForgetCalls();
  ZnDbDatabase* none = nullptr;
  EXPECT_FALSE(Manager().IsOverlay(none, 42));
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(Overlay, IsFalseIfTheTableDoesNotOpen) {
  AddBlock(L"A", 42, true);
  world.Fail("getSymbolTable", 5);
  EXPECT_FALSE(Ask(42));
  EXPECT_THAT(world.Calls(), ElementsAre("getSymbolTable(ZnDbBlockTable, 0)"));
}

TEST_F(Overlay, IsFalseIfNoIteratorComes) {
  AddBlock(L"A", 42, true);
  world.FailWithNull("newIterator", 5);
  EXPECT_FALSE(Ask(42));
  world.ForgetScripts();
  world.ReturnNull("newIterator");
  EXPECT_FALSE(Ask(42));
  EXPECT_EQ(world.Count("close"), 1);
}

TEST_F(Overlay, IsFalseIfTheIteratorComesWithAFailure) {
  AddBlock(L"A", 42, true);
  world.Fail("newIterator", 5);
  EXPECT_FALSE(Ask(42));
}

TEST_F(Overlay, EndsAtABlockThatDoesNotOpen) {
  AddBlock(L"A", 41, true);
  AddBlock(L"B", 42, true);
  world.Fail("zndbOpenObject(block A, ZnDbBlockTableRecord, 0, false)", 5);
  EXPECT_FALSE(Ask(42));
  EXPECT_THAT(world.Calls({"zndbOpenObject"}),
              ElementsAre("zndbOpenObject(block A, ZnDbBlockTableRecord, 0, false)"));
}

TEST_F(Overlay, FindsWhatStandsBeforeABlockThatDoesNotOpen) {
  AddBlock(L"A", 41, true);
  AddBlock(L"B", 42, true);
  world.Fail("zndbOpenObject(block B, ZnDbBlockTableRecord, 0, false)", 5);
  EXPECT_TRUE(Ask(41));
}

TEST_F(Overlay, DeletesATableWithoutAnId) {
  AddBlock(L"A", 42, true);
  world.drawing.blocks.inDatabase = false;
  EXPECT_TRUE(Ask(42));
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("blocks iterator.delete()", "blocks.delete()"));
}

TEST_F(Overlay, DeletesABlockWithoutAnId) {
  AddBlock(L"A", 42, true).inDatabase = false;
  EXPECT_FALSE(Ask(42));
  EXPECT_EQ(world.Count("close"), 1);
}

TEST_F(Overlay, GivesEverythingBackWhenAFaultPasses) {
  AddBlock(L"A", 42, true);
  for (const char* const call : {"newIterator", "start", "step", "getRecordId", "zndbOpenObject",
                                 "nonForwardedHandle", "isFromOverlayReference"}) {
    world.ForgetScripts();
    world.Throw(call);
    // The step comes after a block that isn't the one.
    EXPECT_THROW(Ask(std::string(call) == "step" ? 41 : 42), scripted::Fault) << call;
  }
}

}  // namespace

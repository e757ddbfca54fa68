// Which nodes of a walk become records, and who owns the others.
#include "support/scripted/LeakAllowed.h"
#include "unit/references/ReferencesTest.h"

using references::Shown;
using references::Walked;
using references::WalkInto;
using references::WalkTest;
using references::ZnDwgDependentFile;
using scripted::WalkedFile;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class WalkRecords : public WalkTest {
 protected:
  ZnDwgDepends::DwgFile* NodeOfRecord(const Walked& walked, std::size_t at) {
    return dynamic_cast<ZnDwgDependentFile&>(*walked.records.at(at)).GetDwgFile();
  }
};

TEST_F(WalkRecords, PassOverNullEntries) {
  world.walker.AddNull();
  world.walker.Add("image", L"i.png", 2, 42);
  world.walker.AddNull();
  world.walker.Add("font", L"f.shx", 9, 43);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 i.png type 2 repathable", "43 f.shx type 10 repathable"));
}

TEST_F(WalkRecords, AreBoundToTheirNodes) {
  const WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(NodeOfRecord(walked, 0), world.walker.NodeOf(image));
  EXPECT_EQ(dynamic_cast<ZnDwgDependentFile&>(*walked.root).GetDwgFile(),
            world.walker.NodeOf(root));
}

TEST_F(WalkRecords, OneOfTheIdZeroIsKeptBesideTheRoot) {
  world.walker.Add("listed", L"x.dwg", 10, 0);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records), ElementsAre("0 x.dwg type 10"));
}

TEST_F(WalkRecords, TheFirstOfTwoWithOneIdIsKept) {
  world.walker.Add("first", L"first.png", 2, 42);
  const WalkedFile& second = world.walker.Add("second", L"second.png", 2, 42);
  world.walker.Add("third", L"third.png", 2, 43);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 first.png type 2 repathable", "43 third.png type 2 repathable"));
  EXPECT_TRUE(world.walker.IsAlive(second));
  DeleteNodes({&second});
}

TEST_F(WalkRecords, AllOfOneIdButTheFirstAreLeftOut) {
  const WalkedFile* const more[] = {&world.walker.Add("first", L"1.png", 2, 42),
                                    &world.walker.Add("second", L"2.png", 2, 42),
                                    &world.walker.Add("third", L"3.png", 2, 42)};
  world.walker.Add("last", L"4.png", 2, 44);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 1.png type 2 repathable", "44 4.png type 2 repathable"));
  DeleteNodes({more[1], more[2]});
}

TEST_F(WalkRecords, ASecondOneIsReadLikeEveryOther) {
  world.walker.Add("first", L"first.png", 2, 42);
  const WalkedFile& second = world.walker.Add("second", L"second.png", 2, 42);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(world.Calls({"xrefId"}), ElementsAre("first.xrefId()", "second.xrefId()"));
  EXPECT_THAT(world.Calls({"filename"}),
              ElementsAre("root.filename()", "first.filename()", "second.filename()"));
  DeleteNodes({&second});
}

TEST_F(WalkRecords, UnderTheFlagTheFirstOfTwoWithOneIdIsKeptAndTheRootOwnsBoth) {
  const scripted::LeakAllowed leak;
  SetFlag(true);
  WalkedFile& first = world.walker.Add("first", L"first.png", 2, 42);
  WalkedFile& second = world.walker.Add("second", L"second.png", 2, 42);
  root.dependents = {&first, &second};
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records), ElementsAre("42 first.png type 2 repathable"));
  walked.Release();
  EXPECT_FALSE(world.walker.IsAlive(first));
  EXPECT_FALSE(world.walker.IsAlive(second));
}

TEST_F(WalkRecords, ANodeThatComesTwiceIsListedOnce) {
  const scripted::LeakAllowed leak;
  WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  world.walker.AddAgain(image);
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records), ElementsAre("42 i.png type 2 repathable"));
  EXPECT_EQ(NodeOfRecord(walked, 0), world.walker.NodeOf(image));
}

// Ownership by record

TEST_F(WalkRecords, WithTheFlagFalseEachReleasesItsNode) {
  WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  WalkedFile& font = world.walker.Add("font", L"f.shx", 9, 43);
  root.dependents = {&image, &font};
  Walked walked;
  WalkInto(walked);
  walked.records[1]->Dispose();
  EXPECT_FALSE(world.walker.IsAlive(font));
  EXPECT_TRUE(world.walker.IsAlive(image));
  walked.root->Dispose();
  EXPECT_FALSE(world.walker.IsAlive(root));
  EXPECT_TRUE(world.walker.IsAlive(image));
}

TEST_F(WalkRecords, WithTheFlagTrueTheRootReleasesEveryNode) {
  SetFlag(true);
  WalkedFile& nested = world.walker.AddUnlisted("nested", L"n.dwg", 0, 44);
  WalkedFile& image = world.walker.Add("image", L"i.png", 2, 42);
  image.dependents = {&nested};
  root.dependents = {&image};
  Walked walked;
  WalkInto(walked);
  walked.records[0]->Dispose();
  EXPECT_TRUE(world.walker.IsAlive(image));
  walked.root->Dispose();
  EXPECT_THAT(world.Calls({"delete"}),
              ElementsAre("nested.delete()", "image.delete()", "root.delete()"));
  for (references::DwgDependentFile* const record : walked.records) references::Delete(record);
  references::Delete(walked.root);
  walked.records.clear();
  walked.root = nullptr;
}

// Direct ones alone

class DirectRecords : public WalkRecords {
 protected:
  DirectRecords() {
    root.dependents = {&direct, &other};
    direct.dependents = {&nested};
  }
  WalkedFile& direct = world.walker.Add("direct", L"d.dwg", 0, 42);
  WalkedFile& nested = world.walker.Add("nested", L"n.dwg", 0, 43);
  WalkedFile& other = world.walker.Add("other", L"o.png", 2, 44);
};

TEST_F(DirectRecords, AreTheChildrenOfTheRootInTheirOrder) {
  root.dependents = {&other, &direct};
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("44 o.png type 2 repathable", "42 d.dwg type 1 repathable"));
  EXPECT_THAT(world.Calls({"getDependents"}), ElementsAre("root.getDependents(false)"));
}

TEST_F(DirectRecords, TheOthersNodesAreDeletedForNobodyOwnsThem) {
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("nested.delete()"));
}

TEST_F(DirectRecords, TheNodesAreDeletedInTheOrderOfTheList) {
  world.walker.AddNull();
  root.dependents = {&other};
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("direct.delete()", "nested.delete()"));
}

TEST_F(DirectRecords, ANodeThatIsListedTwiceIsDeletedOnce) {
  world.walker.AddAgain(nested);
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(world.Calls({"delete"}), ElementsAre("nested.delete()"));
}

TEST_F(DirectRecords, UnderTheFlagTheOthersNodesStayTheRoots) {
  SetFlag(true);
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 d.dwg type 1 repathable", "44 o.png type 2 repathable"));
  EXPECT_EQ(world.Count("delete"), 0);
  EXPECT_TRUE(world.walker.IsAlive(nested));
  walked.Release();
  EXPECT_FALSE(world.walker.IsAlive(nested));
}

TEST_F(DirectRecords, OnesThatTheListDidNotHaveAreListedToo) {
  WalkedFile& unlisted = world.walker.AddUnlisted("unlisted", L"u.png", 2, 45);
  root.dependents = {&direct, nullptr, &unlisted, &other};
  Walked walked;
  WalkInto(walked, {}, true);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 d.dwg type 1 repathable", "45 u.png type 2 repathable",
                          "44 o.png type 2 repathable"));
}

TEST_F(DirectRecords, WithoutTheWishAllAreListed) {
  Walked walked;
  WalkInto(walked);
  EXPECT_EQ(walked.records.size(), 3u);
  EXPECT_EQ(world.Count("getDependents"), 0);
  EXPECT_EQ(world.Count("delete"), 0);
}

TEST_F(DirectRecords, AFaultWhileTheyAreAskedForLeavesTheRootsRecord) {
  world.Throw("getDependents");
  Walked walked;
  EXPECT_THROW(WalkInto(walked, {}, true), scripted::Fault);
  EXPECT_EQ(Shown(*walked.root), "0 C:\\a.dwg type 1 repathable");
  EXPECT_EQ(world.Count("~DwgDepends"), 1);
  DeleteNodes({&direct, &nested, &other});
}

// Overlays

class OverlayMarks : public WalkRecords {
 protected:
  OverlayMarks() {
    AddBlock(L"attached", 42, false);
    AddBlock(L"overlaid", 43, true);
    world.walker.Add("attached", L"a2.dwg", 0, 42);
    world.walker.Add("overlaid", L"o.dwg", 1, 43);
    world.walker.Add("other", L"x.dwg", 1, 44);
  }
  scripted::Record& AddBlock(const wchar_t* name, std::uint64_t handle, bool overlay) {
    scripted::Record& block = world.drawing.blocks.Add(name);
    block.handle = handle;
    block.overlay = overlay;
    return block;
  }
};

TEST_F(OverlayMarks, AreSetWhereTheBlockIsFromAnOverlay) {
  Walked walked;
  WalkInto(walked, {.DetectOverlays = true});
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 a2.dwg type 1 repathable", "43 o.dwg type 1 repathable overlay",
                          "44 x.dwg type 1 repathable"));
  EXPECT_FALSE(walked.root->GetIsOverlay());
}

TEST_F(OverlayMarks, AreFalseWithoutTheWishAndTheBlocksAreNotReadThen) {
  Walked walked;
  WalkInto(walked);
  EXPECT_THAT(Shown(walked.records),
              ElementsAre("42 a2.dwg type 1 repathable", "43 o.dwg type 1 repathable",
                          "44 x.dwg type 1 repathable"));
  // The one opening is that of the flavour.
  EXPECT_EQ(world.Count("getSymbolTable"), 1);
  EXPECT_EQ(world.Count("newIterator"), 0);
}

TEST_F(OverlayMarks, AreWhatIsOverlayTellsOfEachId) {
  AddBlock(L"again", 42, true);
  AddBlock(L"unreadable", 45, true);
  AddBlock(L"behind it", 44, true);
  world.Fail("zndbOpenObject(block unreadable, ZnDbBlockTableRecord, 0, false)", 5);
  Walked walked;
  WalkInto(walked, {.DetectOverlays = true});
  const bool expected[] = {true, true, false};
  for (std::size_t i = 0; i < 3; ++i) {
    const std::uint64_t id = 42 + i;
    EXPECT_EQ(walked.records[i]->GetIsOverlay(), expected[i]) << id;
    EXPECT_EQ(references::Manager().IsOverlay(walked.database, id), expected[i]) << id;
  }
}

TEST_F(OverlayMarks, TakeOneReadingOfTheBlocksHoweverManyReferencesThereAre) {
  Walked walked;
  WalkInto(walked, {.DetectOverlays = true});
  EXPECT_EQ(world.Count("newIterator"), 1);
}

TEST_F(OverlayMarks, AreFalseIfTheBlocksCannotBeRead) {
  world.ReturnNull("newIterator");
  Walked walked;
  WalkInto(walked, {.DetectOverlays = true});
  EXPECT_FALSE(walked.records[1]->GetIsOverlay());
}

TEST(OverlayMarksAlone, OfADrawingWithoutReferencesNeedNoReading) {
  scripted::World world;
  world.walker.Add("root", L"C:\\a.dwg").hasDatabase = true;
  Walked walked;
  WalkInto(walked, {.DetectOverlays = true});
  EXPECT_EQ(world.Count("newIterator"), 0);
  walked.Release();
  EXPECT_THAT(world.Leftovers(), IsEmpty());
}

}  // namespace

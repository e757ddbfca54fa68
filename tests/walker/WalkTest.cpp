// Which nodes a walk makes, in which order, and what it opens.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "backends/database/zndb/DatabaseProvider.h"
#include "backends/walker/Walk.h"
#include "platform/zndb/Provider.h"
#include "walker/MadeUpWorld.h"

namespace walker_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zdx::model::FileUse;
using zdx::walker::ErrorCondition;
using zdx::walker::FileFacts;

class WalkTest : public testing::Test {
 protected:
  WalkTest() : before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())) {}
  ~WalkTest() override { zndb::InstallProvider(before_); }

  MadeUpWorld world;

 private:
  zndb::Provider* before_;
};

TEST_F(WalkTest, ADrawingWithoutReferencesIsItsOnlyNode) {
  world.drawings[L"root.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg"));
  EXPECT_EQ(nodes[0]->fileType(), 0);
  EXPECT_EQ(nodes[0]->xrefId(), 0U);
  EXPECT_EQ(nodes[0]->facts().parent, nullptr);
  EXPECT_THAT(nodes[0]->getDirectDependents(), IsEmpty());
}

TEST_F(WalkTest, TheOrderIsBreadthFirst) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"b.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"a1.dwg"), Attached(L"a2.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"b1.dwg")};
  world.drawings[L"a1.dwg"].references = {Attached(L"a11.dwg")};
  for (const wchar_t* const leaf : {L"a2.dwg", L"b1.dwg", L"a11.dwg"}) world.drawings[leaf];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  EXPECT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg", L"a1.dwg", L"a2.dwg",
                                          L"b1.dwg", L"a11.dwg"));
  EXPECT_THAT(NamesOf(nodes[0]->getDirectDependents()), ElementsAre(L"a.dwg", L"b.dwg"));
  EXPECT_THAT(NamesOf(nodes[1]->getDirectDependents()), ElementsAre(L"a1.dwg", L"a2.dwg"));
  EXPECT_EQ(nodes[6]->facts().parent, nodes[3].get());
}

TEST_F(WalkTest, GetDependentsGivesTheDirectOnesOrAllBelow) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"b.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"a1.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"b1.dwg")};
  world.drawings[L"a1.dwg"];
  world.drawings[L"b1.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  std::vector<ZnDwgDepends::File*> files = {nullptr};
  EXPECT_TRUE(nodes[0]->getDependents(files, false));
  EXPECT_THAT(NamesOf(files), ElementsAre(L"a.dwg", L"b.dwg"));
  EXPECT_TRUE(nodes[0]->getDependents(files, true));
  EXPECT_THAT(NamesOf(files), ElementsAre(L"a.dwg", L"b.dwg", L"a1.dwg", L"b1.dwg"));
}

TEST_F(WalkTest, EachDrawingIsOpenedOnceAndLetGoBeforeTheNext) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"b.dwg"),
                                            Attached(L"a.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg"), Attached(L"c.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"c.dwg")};
  world.drawings[L"c.dwg"];
  Nodes nodes = WalkFrom(world, L"root.dwg");
  EXPECT_THAT(world.opened, ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg", L"c.dwg"));
  // The walked one beside one other.
  EXPECT_EQ(world.mostOpen, 2);
  EXPECT_EQ(world.open, 1);
  EXPECT_NE(nodes[0]->database(), nullptr);
  EXPECT_EQ(nodes[1]->database(), nullptr);
  nodes[0].reset();
  EXPECT_EQ(world.open, 0);
}

TEST_F(WalkTest, ADrawingThatIsReachedAgainIsALeafThatSaysSo) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"b.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"shared.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"shared.dwg")};
  world.drawings[L"shared.dwg"].references = {Attached(L"leaf.dwg")};
  world.drawings[L"leaf.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg", L"shared.dwg",
                                          L"shared.dwg", L"leaf.dwg"));
  EXPECT_FALSE(nodes[3]->facts().isRepeated);
  EXPECT_TRUE(nodes[4]->facts().isRepeated);
  EXPECT_THAT(NamesOf(nodes[3]->getDirectDependents()), ElementsAre(L"leaf.dwg"));
  EXPECT_THAT(nodes[4]->getDirectDependents(), IsEmpty());
}

TEST_F(WalkTest, WhatADrawingRefersToHangsUnderTheFirstNodeThatLeadsToIt) {
  // The deep way to b.dwg is found later than the short one, though a.dwg is opened first.
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"b.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"leaf.dwg")};
  world.drawings[L"leaf.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg", L"b.dwg", L"leaf.dwg"));
  EXPECT_EQ(nodes[4]->facts().parent, nodes[2].get());
  EXPECT_TRUE(nodes[3]->facts().isRepeated);
}

TEST_F(WalkTest, CirclesEnd) {
  world.drawings[L"root.dwg"].references = {Attached(L"root.dwg"), Attached(L"a.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg"), Attached(L"root.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"a.dwg")};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes),
              ElementsAre(L"root.dwg", L"root.dwg", L"a.dwg", L"b.dwg", L"root.dwg", L"a.dwg"));
  EXPECT_TRUE(nodes[1]->facts().isRepeated);
  EXPECT_FALSE(nodes[2]->facts().isRepeated);
  EXPECT_TRUE(nodes[4]->facts().isRepeated);
  EXPECT_TRUE(nodes[5]->facts().isRepeated);
  EXPECT_EQ(world.opened.size(), 3U);
}

TEST_F(WalkTest, DrawingsAreTheSameIfTheirFilesAre) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"link.dwg")};
  world.drawings[L"a.dwg"];
  world.drawings[L"link.dwg"];
  world.otherNames[L"link.dwg"] = L"a.dwg";
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_EQ(nodes.size(), 3U);
  EXPECT_STREQ(nodes[2]->filename(), L"link.dwg");
  EXPECT_TRUE(nodes[2]->facts().isRepeated);
  EXPECT_THAT(world.opened, ElementsAre(L"root.dwg", L"a.dwg"));
}

TEST_F(WalkTest, DrawingsWhoseFileCannotBeToldApartAreToldByTheirNames) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"b.dwg")};
  world.drawings[L"a.dwg"];
  world.drawings[L"b.dwg"];
  for (const wchar_t* const name : {L"root.dwg", L"a.dwg", L"b.dwg"}) world.otherNames[name] = L"";
  WalkFrom(world, L"root.dwg");
  EXPECT_THAT(world.opened, ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg"));
}

TEST_F(WalkTest, OverlaysOfTheWalkedDrawingAreFollowed) {
  world.drawings[L"root.dwg"].references = {Overlaid(L"a.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg")};
  world.drawings[L"b.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  EXPECT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg"));
  EXPECT_EQ(nodes[1]->fileType(), 1);
  EXPECT_EQ(nodes[2]->fileType(), 0);
}

TEST_F(WalkTest, OverlaysOfADrawingThatIsReferredToAreLeaves) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg")};
  world.drawings[L"a.dwg"].references = {Overlaid(L"b.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"c.dwg")};
  world.drawings[L"c.dwg"];
  EXPECT_THAT(NamesOf(WalkFrom(world, L"root.dwg")), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg"));
  EXPECT_THAT(world.opened, ElementsAre(L"root.dwg", L"a.dwg"));
  EXPECT_THAT(NamesOf(WalkFrom(world, L"root.dwg", kAlways | 0x10)),
              ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg", L"c.dwg"));
}

TEST_F(WalkTest, ADrawingThatWasOnlyListedIsStillFollowedFromElsewhere) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg")};
  world.drawings[L"a.dwg"].references = {Overlaid(L"b.dwg"), Attached(L"b.dwg")};
  world.drawings[L"b.dwg"].references = {Attached(L"c.dwg")};
  world.drawings[L"c.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg", L"b.dwg", L"c.dwg"));
  EXPECT_FALSE(nodes[3]->facts().isRepeated);
  EXPECT_EQ(nodes[4]->facts().parent, nodes[3].get());
}

TEST_F(WalkTest, AnUnloadedDrawingIsMarkedAndFollowedLikeAnyOther) {
  auto unloaded = Attached(L"a.dwg");
  unloaded.isUnloaded = true;
  world.drawings[L"root.dwg"].references = {unloaded};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg")};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"b.dwg"));
  EXPECT_FALSE(nodes[0]->facts().isUnloaded);
  EXPECT_TRUE(nodes[1]->facts().isUnloaded);
  EXPECT_FALSE(nodes[2]->facts().isUnloaded);
}

TEST_F(WalkTest, DirectWalksOpenTheWalkedDrawingAlone) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"missing.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg")};
  const Nodes nodes = WalkFrom(world, L"root.dwg", kAlways, true);
  EXPECT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"a.dwg", L"missing.dwg"));
  EXPECT_THAT(world.opened, ElementsAre(L"root.dwg"));
  EXPECT_EQ(nodes[2]->facts().condition, ErrorCondition::kNotFound);
}

TEST_F(WalkTest, ANodeKnowsWhatItsRecordSaid) {
  auto image = Reference(FileUse::kImage, L"site.png", 0x2A);
  image.name = L"Site";
  world.drawings[L"root.dwg"].references = {image};
  world.files[L"site.png"] = L"/pictures/site.png";
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_EQ(nodes.size(), 2U);
  const FileFacts& facts = nodes[1]->facts();
  EXPECT_EQ(facts.use, FileUse::kImage);
  EXPECT_EQ(facts.storedPath, L"site.png");
  EXPECT_EQ(facts.filename, L"/pictures/site.png");
  EXPECT_EQ(facts.name, L"Site");
  EXPECT_TRUE(facts.isFound);
  EXPECT_EQ(facts.parent, nodes[0].get());
  EXPECT_EQ(nodes[1]->xrefId(), 0x2AU);
}

TEST_F(WalkTest, AFileThatIsNotFoundKeepsItsStoredName) {
  world.drawings[L"root.dwg"].references = {Reference(FileUse::kFont, L"Bold")};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes), ElementsAre(L"root.dwg", L"Bold"));
  EXPECT_FALSE(nodes[1]->facts().isFound);
}

TEST_F(WalkTest, IdsAreUniqueAndThoseOfTheWalkedDrawingAreItsHandles) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg", 0x20),
                                            Reference(FileUse::kImage, L"i.png", 0x30)};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg", 0x30), Attached(L"c.dwg", 0x40),
                                         Reference(FileUse::kStyleSheet, L"s.ctb", 0)};
  world.drawings[L"b.dwg"].references = {Reference(FileUse::kImage, L"j.png", 0x30)};
  world.drawings[L"c.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  std::vector<std::uint64_t> ids;
  for (const auto& node : nodes) ids.push_back(node->xrefId());
  EXPECT_THAT(ids, ElementsAre(0U, 0x20U, 0x30U, 0x1000000000030U, 0x40U, 0x1000000000000U,
                               0x2000000000030U));
}

TEST_F(WalkTest, AFontThatManyStylesNameHasOneNodeInADrawing) {
  world.drawings[L"root.dwg"].references = {
      Attached(L"a.dwg"), Reference(FileUse::kFont, L"txt.shx", 0x51),
      Reference(FileUse::kFont, L"TXT.SHX", 0x52), Reference(FileUse::kBigFont, L"txt.shx", 0x52)};
  world.drawings[L"a.dwg"].references = {Reference(FileUse::kFont, L"txt.shx", 0x61)};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_THAT(NamesOf(nodes),
              ElementsAre(L"root.dwg", L"a.dwg", L"txt.shx", L"txt.shx", L"txt.shx"));
  EXPECT_EQ(nodes[2]->xrefId(), 0x51U);
  EXPECT_EQ(nodes[3]->facts().use, FileUse::kBigFont);
  EXPECT_EQ(nodes[4]->facts().parent, nodes[1].get());
  EXPECT_EQ(WalkFrom(world, L"root.dwg", kAlways | 0x400).size(), 6U);
}

TEST_F(WalkTest, DrawingsAndImagesHaveANodeForEachRecord) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg", 1), Attached(L"a.dwg", 2),
                                            Reference(FileUse::kImage, L"i.png", 3),
                                            Reference(FileUse::kImage, L"i.png", 4)};
  world.drawings[L"a.dwg"];
  EXPECT_EQ(WalkFrom(world, L"root.dwg").size(), 5U);
}

TEST_F(WalkTest, RecordsThatCameWithAnotherDrawingAreListedOnlyIfAskedFor) {
  auto inner = Reference(FileUse::kFont, L"inner.shx");
  inner.isDependent = true;
  world.drawings[L"root.dwg"].references = {inner, Reference(FileUse::kFont, L"own.shx")};
  EXPECT_THAT(NamesOf(WalkFrom(world, L"root.dwg")), ElementsAre(L"root.dwg", L"own.shx"));
  EXPECT_THAT(NamesOf(WalkFrom(world, L"root.dwg", kAlways | 0x1000)),
              ElementsAre(L"root.dwg", L"inner.shx", L"own.shx"));
}

TEST_F(WalkTest, ARecordThatCameWithAnotherDrawingHidesNoneOfTheSameName) {
  auto inner = Reference(FileUse::kFont, L"txt.shx", 1);
  inner.isDependent = true;
  world.drawings[L"root.dwg"].references = {inner, Reference(FileUse::kFont, L"txt.shx", 2)};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_EQ(nodes.size(), 2U);
  EXPECT_EQ(nodes[1]->xrefId(), 2U);
}

TEST_F(WalkTest, AnAddressIsNeitherLookedForNorMissing) {
  world.drawings[L"root.dwg"].references = {
      Reference(FileUse::kImage, L"https://example.org/i.png"), Attached(L"http://host/a.dwg")};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  EXPECT_EQ(nodes.size(), 3U);
  EXPECT_THAT(world.asked, IsEmpty());
  EXPECT_FALSE(nodes[1]->facts().isFound);
  EXPECT_THAT(zdx::walker::ErrorsOf(nodes), IsEmpty());
}

TEST_F(WalkTest, AWalkedDrawingThatCannotBeReadIsTheOnlyNode) {
  world.drawings[L"root.dwg"] = {{Attached(L"a.dwg")}, ErrorCondition::kBadHeader, L"No drawing."};
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_EQ(nodes.size(), 1U);
  EXPECT_EQ(nodes[0]->database(), nullptr);
  EXPECT_EQ(nodes[0]->facts().reason, L"No drawing.");
  EXPECT_THAT(zdx::walker::ErrorsOf(nodes),
              ElementsAre(std::pair(std::wstring(L"root.dwg"), ErrorCondition::kBadHeader)));
}

TEST_F(WalkTest, WhatGoesWrongBelowIsToldAndEndsNothing) {
  world.drawings[L"root.dwg"].references = {Attached(L"bad.dwg"), Attached(L"gone.dwg"),
                                            Reference(FileUse::kImage, L"gone.png"),
                                            Attached(L"good.dwg")};
  world.drawings[L"bad.dwg"] = {{}, ErrorCondition::kReadFailed, L"It is damaged."};
  world.drawings[L"good.dwg"];
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  ASSERT_EQ(nodes.size(), 5U);
  EXPECT_EQ(nodes[1]->facts().reason, L"It is damaged.");
  EXPECT_EQ(nodes[4]->facts().condition, ErrorCondition::kNoError);
  EXPECT_THAT(zdx::walker::ErrorsOf(nodes),
              ElementsAre(std::pair(std::wstring(L"bad.dwg"), ErrorCondition::kReadFailed),
                          std::pair(std::wstring(L"gone.dwg"), ErrorCondition::kNotFound),
                          std::pair(std::wstring(L"gone.png"), ErrorCondition::kNotFound)));
}

TEST_F(WalkTest, NoErrorBelowGoesByTheNameOfTheWalkedDrawing) {
  world.drawings[L"root.dwg"].references = {Reference(FileUse::kListed, L"ROOT.dwg"),
                                            Reference(FileUse::kListed, L"other.dwg")};
  const Nodes nodes = WalkFrom(world, L"root.dwg", kAlways | 0x20);
  ASSERT_EQ(nodes.size(), 3U);
  EXPECT_EQ(nodes[1]->facts().condition, ErrorCondition::kNotFound);
  EXPECT_THAT(zdx::walker::ErrorsOf(nodes),
              ElementsAre(std::pair(std::wstring(L"other.dwg"), ErrorCondition::kNotFound)));
}

TEST_F(WalkTest, AnExceptionOfTheSearchPassesAndLeavesNothingOpen) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg"), Attached(L"c.dwg")};
  world.drawings[L"b.dwg"];
  world.forbidden = L"c.dwg";
  EXPECT_THROW(WalkFrom(world, L"root.dwg"), std::runtime_error);
  EXPECT_EQ(world.open, 0);
}

TEST_F(WalkTest, NodesAreDeletedInAnyOrder) {
  world.drawings[L"root.dwg"].references = {Attached(L"a.dwg"), Attached(L"c.dwg")};
  world.drawings[L"a.dwg"].references = {Attached(L"b.dwg")};
  world.drawings[L"b.dwg"];
  world.drawings[L"c.dwg"];
  Nodes rootFirst = WalkFrom(world, L"root.dwg");
  for (auto& node : rootFirst) node.reset();
  Nodes rootLast = WalkFrom(world, L"root.dwg");
  while (!rootLast.empty()) rootLast.pop_back();
  EXPECT_EQ(world.open, 0);
}

TEST_F(WalkTest, AChainOfTenThousandDrawingsIsWalked) {
  constexpr int kLength = 10000;
  const auto name = [](int at) { return std::to_wstring(at) + L".dwg"; };
  for (int at = 0; at < kLength; ++at) {
    world.drawings[name(at)].references = {Attached(name(at + 1), 0x20)};
  }
  world.drawings[name(kLength)];
  const Nodes nodes = WalkFrom(world, name(0));
  ASSERT_EQ(nodes.size(), kLength + 1U);
  EXPECT_EQ(nodes.back()->filename(), name(kLength));
  EXPECT_EQ(world.mostOpen, 2);
  std::vector<ZnDwgDepends::File*> below;
  nodes[0]->getDependents(below, true);
  EXPECT_EQ(below.size(), static_cast<std::size_t>(kLength));
}

TEST_F(WalkTest, AHundredThousandReferencesOfOneDrawingAreListed) {
  constexpr std::size_t kCount = 100000;
  auto& references = world.drawings[L"root.dwg"].references;
  for (std::size_t at = 0; at < kCount; ++at) {
    references.push_back(Reference(FileUse::kImage, std::to_wstring(at) + L".png"));
  }
  const Nodes nodes = WalkFrom(world, L"root.dwg");
  EXPECT_EQ(nodes.size(), kCount + 1);
  EXPECT_EQ(zdx::walker::ErrorsOf(nodes).size(), kCount);
}

}  // namespace
}  // namespace walker_test

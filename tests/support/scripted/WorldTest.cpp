// What the stand-in does that the contracts of the platform interfaces demand.
#include <gtest/gtest.h>

#include "support/scripted/ForeignServices.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using ScriptedWorld = scripted::ScriptedTest;

TEST_F(ScriptedWorld, ADictionaryFindsAnEntryWithoutRegardToCase) {
  const scripted::PlainObject& entry = world.drawing.layouts.Add(L"Grundri\u00C4");
  ZnDbDatabase database(false, true);
  ZnDbDictionary* layouts = nullptr;
  ASSERT_EQ(database.getLayoutDictionary(layouts, ZnDb::kForRead), Zent::kOk);
  ZnDbObjectId id;
  EXPECT_EQ(layouts->getAt(L"gRUNDRI\u00E4", id), Zent::kOk);
  EXPECT_EQ(id, scripted::IdOf(entry));
  EXPECT_EQ(layouts->getAt(L"Grundria", id), Zent::kKeyNotFound);
  layouts->close();
}

TEST_F(ScriptedWorld, CallsOnServicesThatAreNotInstalledSaySo) {
  world.InstallServices();
  const auto others = scripted::NewForeignServices();
  world.ForgetCalls();
  others->prodcode();
  world.library.services->prodcode();
  EXPECT_THAT(world.Calls(), ElementsAre("services not installed.prodcode()", "prodcode()"));
}

// A world of its own, which need not be left as it was found.
TEST(ScriptedWalker, ANodeThatIsDeletedTwiceOrNeverIsToldOf) {
  scripted::World world;
  scripted::WalkedFile& root = world.walker.Add("root", L"a.dwg");
  scripted::WalkedFile& image = world.walker.Add("image", L"i.png");
  root.dependents = {&image};
  ZnDwgDepends::File* const node = world.walker.NodeOf(root);
  EXPECT_TRUE(world.walker.IsAlive(image));
  delete node;
  EXPECT_FALSE(world.walker.IsAlive(root));
  EXPECT_TRUE(world.walker.IsAlive(image));
  EXPECT_THAT(world.Leftovers(), ElementsAre("still out: node image"));
  delete node;
  EXPECT_THAT(world.Leftovers(), ElementsAre("still out: node image",
                                             "given back twice, or never handed out: node root"));
}

TEST(ScriptedWalker, ANodeThatIsAskedAfterItsEndIsToldOf) {
  scripted::World world;
  scripted::WalkedFile& root = world.walker.Add("root", L"a.dwg");
  root.hasDatabase = true;
  ZnDwgDepends::File* const node = world.walker.NodeOf(root);
  delete node;
  EXPECT_THAT(world.Leftovers(), IsEmpty());
  node->filename();
  EXPECT_THAT(world.Leftovers(), ElementsAre("called after its end: node root"));
}

TEST(ScriptedWalker, AWalkThatKeepsItsRootDeletesEveryNode) {
  scripted::World world;
  world.walker.Add("root", L"a.dwg");
  world.walker.Add("image", L"i.png");
  {
    ZnDwgDepends::DwgDepends walk(L"a.dwg", 0, L"", L"", false, true);
    std::vector<ZnDwgDepends::File*> files;
    walk.getDependencies(files, true);
    EXPECT_EQ(files.size(), 2u);
  }
  EXPECT_EQ(world.Count("delete"), 2);
  EXPECT_THAT(world.Leftovers(), IsEmpty());
}

}  // namespace

// What the stand-in does that the contracts of the platform interfaces demand.
#include <gtest/gtest.h>

#include "support/scripted/ForeignServices.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;

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

}  // namespace

// The one manager, and its flag.
#include <type_traits>

#include "support/scripted/InFreshProcess.h"
#include "unit/references/ReferencesTest.h"

using references::Manager;
using references::ReferencesTest;
using testing::ElementsAre;
using ZDXEngine::FileReferenceMgr;

namespace {

using ManagerFlag = ReferencesTest;

template <class T>
concept CanBeMade = requires {
  new T();
};
template <class T>
concept CanBeCopied = requires(const T& original, T& other) {
  new T(original);
  other = original;
};

TEST(ReferenceManager, IsOneObject) { EXPECT_EQ(&Manager(), &Manager()); }

TEST(ReferenceManager, IsMadeAndEndedByItsClassAloneButMayBeCopied) {
  static_assert(!CanBeMade<FileReferenceMgr>);
  static_assert(!std::is_destructible_v<FileReferenceMgr>);
  static_assert(CanBeCopied<FileReferenceMgr>);
}

TEST(ReferenceManager, StartsWithTheFlagFalse) {
  const scripted::Afterlife after = scripted::InFreshProcess([](scripted::World& world) {
    world.Note(Manager().GetUseNewDwgUpdateApproachFeatureFlag() ? "true" : "false");
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(false)"));
}

TEST_F(ManagerFlag, SettingItGivesThePreviousValue) {
  EXPECT_FALSE(SetFlag(true));
  EXPECT_TRUE(SetFlag(true));
  EXPECT_TRUE(SetFlag(false));
  EXPECT_FALSE(SetFlag(false));
}

TEST_F(ManagerFlag, GettingItGivesTheLastValueSet) {
  SetFlag(true);
  EXPECT_TRUE(Manager().GetUseNewDwgUpdateApproachFeatureFlag());
  SetFlag(false);
  EXPECT_FALSE(Manager().GetUseNewDwgUpdateApproachFeatureFlag());
}

// Copies can't be ended, so they stay.
TEST_F(ManagerFlag, IsCopied) {
  SetFlag(true);
  static FileReferenceMgr* const copy = new FileReferenceMgr(Manager());
  EXPECT_TRUE(copy->GetUseNewDwgUpdateApproachFeatureFlag());
  SetFlag(false);
  EXPECT_TRUE(copy->GetUseNewDwgUpdateApproachFeatureFlag());
  EXPECT_EQ(&(*copy = Manager()), copy);
  EXPECT_FALSE(copy->GetUseNewDwgUpdateApproachFeatureFlag());
}

}  // namespace

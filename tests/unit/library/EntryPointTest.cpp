#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library/EntryPoint.h"
#include "resources/ResourceModule.h"
#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::World;
using testing::ElementsAre;

namespace {

const auto kModule = reinterpret_cast<os::ModuleHandle>(0x1000);
const auto kOther = reinterpret_cast<os::ModuleHandle>(0x2000);

TEST(EntryPoint, EveryNotificationRecordsTheModuleWhateverItsReason) {
  for (const std::uint32_t reason : {0u, 1u, 2u, 3u, 99u}) {
    const Afterlife after = InFreshProcess([&](World& world) {
      ZDXEngine::OnLoaderNotification(kOther, 1);
      ZDXEngine::OnLoaderNotification(kModule, reason);
      world.Note(ZDXEngine::ResourceModule() == kModule ? "recorded" : "not recorded");
    });
    EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(recorded)")) << reason;
  }
}

TEST(EntryPoint, EveryNotificationIsAccepted) {
  const Afterlife after = InFreshProcess([](World& world) {
    for (const std::uint32_t reason : {0u, 1u, 2u, 3u, 99u}) {
      world.Note(scripted::Shown(ZDXEngine::OnLoaderNotification(kModule, reason)));
    }
  });
  EXPECT_THAT(after.Calls({"note"}),
              ElementsAre("note(true)", "note(true)", "note(true)", "note(true)", "note(true)"));
}

TEST(EntryPoint, ANotificationDoesNoEngineWork) {
  const Afterlife after =
      InFreshProcess([](World&) { ZDXEngine::OnLoaderNotification(kModule, 1); });
  EXPECT_THAT(after.Calls(), testing::IsEmpty());
}

}  // namespace

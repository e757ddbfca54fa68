#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "resources/ResourceModule.h"
#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::World;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const auto kFirst = reinterpret_cast<os::ModuleHandle>(0x1000);   // 4096
const auto kSecond = reinterpret_cast<os::ModuleHandle>(0x2000);  // 8192

void NoteModule(World& world, os::ModuleHandle module) {
  world.Note(module == nullptr ? "null" : module == kFirst ? "first" : "second");
}

TEST(ResourceModule, IsNullUntilAHandleIsRecorded) {
  const Afterlife after =
      InFreshProcess([](World& world) { NoteModule(world, ZDXEngine::ResourceModule()); });
  EXPECT_THAT(after.Calls(), ElementsAre("note(null)"));
}

TEST(ResourceModule, IsTheHandleThatWasRecorded) {
  const Afterlife after = InFreshProcess([](World& world) {
    ZDXEngine::SetModuleHandle(kFirst);
    NoteModule(world, ZDXEngine::ResourceModule());
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(first)"));
}

TEST(ResourceModule, IsFilledByTheFirstUseThatFindsAHandle) {
  const Afterlife after = InFreshProcess([](World& world) {
    NoteModule(world, ZDXEngine::ResourceModule());
    ZDXEngine::SetModuleHandle(kFirst);
    NoteModule(world, ZDXEngine::ResourceModule());
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(null)", "note(first)"));
}

TEST(ResourceModule, OnceFilledItKeepsItsHandle) {
  const Afterlife after = InFreshProcess([](World& world) {
    ZDXEngine::SetModuleHandle(kFirst);
    NoteModule(world, ZDXEngine::ResourceModule());
    ZDXEngine::SetModuleHandle(kSecond);
    NoteModule(world, ZDXEngine::ResourceModule());
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(first)", "note(first)"));
}

TEST(ResourceModule, TheLastHandleBeforeTheFirstUseCounts) {
  const Afterlife after = InFreshProcess([](World& world) {
    ZDXEngine::SetModuleHandle(kFirst);
    ZDXEngine::SetModuleHandle(kSecond);
    NoteModule(world, ZDXEngine::ResourceModule());
  });
  EXPECT_THAT(after.Calls({"note"}), ElementsAre("note(second)"));
}

TEST(ResourceModule, TheHandleIsFreedOnceWhenTheProcessExits) {
  const Afterlife after = InFreshProcess([](World& world) {
    ZDXEngine::SetModuleHandle(kFirst);
    ZDXEngine::ResourceModule();
    ZDXEngine::ResourceModule();
    world.Note("exit");
  });
  EXPECT_THAT(after.Calls(), ElementsAre("note(exit)", "FreeLibrary(4096)"));
}

TEST(ResourceModule, TheHandleThatWasKeptIsFreedAndNotALaterOne) {
  const Afterlife after = InFreshProcess([](World&) {
    ZDXEngine::SetModuleHandle(kFirst);
    ZDXEngine::ResourceModule();
    ZDXEngine::SetModuleHandle(kSecond);
  });
  EXPECT_THAT(after.Calls(), ElementsAre("FreeLibrary(4096)"));
}

TEST(ResourceModule, NothingIsFreedAtExitIfNoHandleWasRecorded) {
  const Afterlife after = InFreshProcess([](World&) { ZDXEngine::ResourceModule(); });
  EXPECT_THAT(after.Calls({"FreeLibrary"}), IsEmpty());
}

TEST(ResourceModule, NothingIsFreedAtExitIfNoTextWasEverRead) {
  const Afterlife after = InFreshProcess([](World&) { ZDXEngine::SetModuleHandle(kFirst); });
  EXPECT_THAT(after.Calls(), IsEmpty());
}

}  // namespace

// A child that doesn't end well is its test's failure.
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <stdexcept>

#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::InFreshProcessThatMayDie;
using scripted::World;
using testing::ElementsAre;

namespace {

void NoteAndDie(World& world) {
  world.Note("alive");
  std::signal(SIGABRT, SIG_DFL);
  std::abort();
}

void LeaveWith4AtExit(World& /*world*/) {
  std::atexit([] { std::_Exit(4); });
}

TEST(FreshProcess, AChildThatEndsWellIsNoFailure) {
  const Afterlife after = InFreshProcess([](World& world) { world.Note("alive"); });
  EXPECT_THAT(after.Calls(), ElementsAre("note(alive)"));
  EXPECT_EQ(after.exitCode, 0);
}

TEST(FreshProcess, EachCallOfATestHasAChildOfItsOwn) {
  for (const char* words : {"one", "two"}) {
    const Afterlife after = InFreshProcess([&](World& world) { world.Note(words); });
    EXPECT_THAT(after.Calls(), ElementsAre("note(" + std::string(words) + ")"));
  }
}

TEST(FreshProcess, ExitHandlersAreHeard) {
  static World* worldAtExit = nullptr;
  const Afterlife after = InFreshProcess([](World& world) {
    worldAtExit = &world;
    std::atexit([] { worldAtExit->Note("exit"); });
    world.Note("alive");
  });
  EXPECT_THAT(after.Calls(), ElementsAre("note(alive)", "note(exit)"));
}

TEST(FreshProcess, AChildThatIsEndedFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(InFreshProcess(NoteAndDie), ", after note(alive)");
}

TEST(FreshProcess, ABodyThatThrowsFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(InFreshProcess([](World&) { throw std::runtime_error("no"); }),
                          "the child threw, after its start");
}

TEST(FreshProcess, AnExitHandlerThatLeavesWithAnotherCodeFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(InFreshProcess(LeaveWith4AtExit), "exited with 4");
}

TEST(FreshProcess, AChildThatMayDieFailsNothingAndItsCallsAreKept) {
  const Afterlife after = InFreshProcessThatMayDie(NoteAndDie);
  EXPECT_THAT(after.Calls(), ElementsAre("note(alive)"));
  EXPECT_EQ(after.exitCode, -1);
}

}  // namespace

// A child that doesn't end well is its test's failure.
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <unistd.h>

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
  std::signal(SIGTRAP, SIG_DFL);
  std::raise(SIGTRAP);
}

void LeaveWith3AtExit(World& /*world*/) {
  std::atexit([] { _exit(3); });
}

TEST(FreshProcess, AChildThatEndsWellIsNoFailure) {
  const Afterlife after = InFreshProcess([](World& world) { world.Note("alive"); });
  EXPECT_THAT(after.Calls(), ElementsAre("note(alive)"));
  EXPECT_EQ(after.exitCode, 0);
}

TEST(FreshProcess, AChildEndedByASignalFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(InFreshProcess(NoteAndDie), "by signal 5, after note(alive)");
}

TEST(FreshProcess, ABodyThatThrowsFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(InFreshProcess([](World&) { throw std::runtime_error("no"); }),
                          "the child threw, after its start");
}

TEST(FreshProcess, AnExitHandlerThatLeavesWithAnotherCodeFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(InFreshProcess(LeaveWith3AtExit), "exited with 3");
}

TEST(FreshProcess, AChildThatMayDieFailsNothingAndItsCallsAreKept) {
  const Afterlife after = InFreshProcessThatMayDie(NoteAndDie);
  EXPECT_THAT(after.Calls(), ElementsAre("note(alive)"));
  EXPECT_EQ(after.exitCode, -1);
}

}  // namespace

// The folder for what a user keeps, which is worked out once in a process.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "host/ZDXHostApplication.h"
#include "support/scripted/InFreshProcess.h"

using scripted::Afterlife;
using scripted::InFreshProcess;
using scripted::World;
using testing::ElementsAre;

namespace {

constexpr const wchar_t* kDeepest = L"C:\\Users\\me\\Roaming\\Norvane\\Sync\\Support";

// Asks, and notes the status and the folder.
const wchar_t* Ask(World& world) {
  ZDXEngine::ZDXHostApplication host(ZDXEngine::HostApplicationParam{});
  const wchar_t* folder = nullptr;
  const Zent::ErrorStatus status = host.getRoamingRootFolder(folder);
  world.Note(std::to_string(status) + " " + scripted::Shown(folder));
  return folder;
}

void AskOnce(World& world) { Ask(world); }

std::vector<std::string> OnTheDisk(const Afterlife& after) {
  return after.Calls(
      {"SHGetFolderPathW", "PathAppendW", "PathFileExistsW", "CreateDirectoryW", "note"});
}

TEST(RoamingFolder, MakesThreeFoldersAndTellsTheSecond) {
  const Afterlife after = InFreshProcess(AskOnce);
  EXPECT_THAT(OnTheDisk(after),
              ElementsAre("SHGetFolderPathW(null, 32794, null, 0)",  //
                          "PathAppendW(C:\\Users\\me\\Roaming, Norvane)",
                          "PathFileExistsW(C:\\Users\\me\\Roaming\\Norvane)",
                          "CreateDirectoryW(C:\\Users\\me\\Roaming\\Norvane, null)",
                          "PathAppendW(C:\\Users\\me\\Roaming\\Norvane, Sync)",
                          "PathFileExistsW(C:\\Users\\me\\Roaming\\Norvane\\Sync)",
                          "CreateDirectoryW(C:\\Users\\me\\Roaming\\Norvane\\Sync, null)",
                          "PathAppendW(C:\\Users\\me\\Roaming\\Norvane\\Sync, Support)",
                          "PathFileExistsW(C:\\Users\\me\\Roaming\\Norvane\\Sync\\Support)",
                          "CreateDirectoryW(C:\\Users\\me\\Roaming\\Norvane\\Sync\\Support, null)",
                          "PathFileExistsW(C:\\Users\\me\\Roaming\\Norvane\\Sync\\Support)",
                          "PathAppendW(C:\\Users\\me\\Roaming, Norvane)",
                          "PathAppendW(C:\\Users\\me\\Roaming\\Norvane, Sync)",
                          "note(0 C:\\Users\\me\\Roaming\\Norvane\\Sync)"));
}

TEST(RoamingFolder, FoldersThatAreThereAreNotMade) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.paths.existing = {L"C:\\Users\\me\\Roaming\\Norvane",
                            L"C:\\Users\\me\\Roaming\\Norvane\\Sync", kDeepest};
    Ask(world);
  });
  EXPECT_THAT(after.Calls({"CreateDirectoryW", "note"}),
              ElementsAre("note(0 C:\\Users\\me\\Roaming\\Norvane\\Sync)"));
}

TEST(RoamingFolder, OnlyTheDeepestFolderDecides) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.paths.existing = {kDeepest};
    world.Fail("CreateDirectoryW", 1);
    Ask(world);
  });
  EXPECT_THAT(after.Calls({"CreateDirectoryW", "note"}),
              ElementsAre("CreateDirectoryW(C:\\Users\\me\\Roaming\\Norvane, null)",
                          "CreateDirectoryW(C:\\Users\\me\\Roaming\\Norvane\\Sync, null)",
                          "note(0 C:\\Users\\me\\Roaming\\Norvane\\Sync)"));
}

TEST(RoamingFolder, WithoutTheDeepestFolderTheExecutablesIsTold) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.Fail("CreateDirectoryW(C:\\Users\\me\\Roaming\\Norvane\\Sync\\Support, null)", 1);
    Ask(world);
  });
  EXPECT_THAT(
      after.Calls({"GetModuleFileNameW", "_wsplitpath_s", "wcscat_s", "note"}),
      ElementsAre("GetModuleFileNameW(null, 260)",
                  "_wsplitpath_s(C:\\Program\\zdx.exe, 3, 256, 256, 256)", "wcscat_s(C:, 260, \\)",
                  "wcscat_s(C:\\, 260, \\Program\\)", "note(0 C:\\\\Program\\)"));
  EXPECT_EQ(after.Calls({"CreateDirectoryW"}).size(), 3u);
}

TEST(RoamingFolder, WithoutARoamingFolderNothingIsMade) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.Fail("SHGetFolderPathW", -5);
    Ask(world);
  });
  EXPECT_THAT(OnTheDisk(after),
              ElementsAre("SHGetFolderPathW(null, 32794, null, 0)", "note(0 C:\\\\Program\\)"));
}

TEST(RoamingFolder, AnyAnswerThatIsNotNegativeIsSuccess) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.paths.roamingFolder.clear();
    world.Fail("SHGetFolderPathW", 1);
    Ask(world);
  });
  EXPECT_THAT(
      after.Calls({"CreateDirectoryW"}),
      ElementsAre("CreateDirectoryW(Norvane, null)", "CreateDirectoryW(Norvane\\Sync, null)",
                  "CreateDirectoryW(Norvane\\Sync\\Support, null)"));
}

TEST(RoamingFolder, AnExecutableThatCannotBeToldIsNotLookedAt) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.Fail("SHGetFolderPathW", -5);
    world.Fail("GetModuleFileNameW", 1);
    Ask(world);
  });
  EXPECT_THAT(after.Calls({"_wsplitpath_s", "note"}),
              ElementsAre("_wsplitpath_s(, 3, 256, 256, 256)", "note(0 \\)"));
}

TEST(RoamingFolder, ASecondQuestionTouchesNothingAndGivesTheSamePointer) {
  const Afterlife after = InFreshProcess([](World& world) {
    const wchar_t* const first = Ask(world);
    world.Note("again");
    world.paths.existing.clear();
    world.Note(Ask(world) == first ? "same" : "another");
  });
  std::vector<std::string> calls =
      after.Calls({"SHGetFolderPathW", "PathAppendW", "PathFileExistsW", "CreateDirectoryW",
                   "GetModuleFileNameW", "wcscpy_s", "note"});
  calls.erase(calls.begin(), std::ranges::find(calls, "note(again)"));
  EXPECT_THAT(calls, ElementsAre("note(again)", "note(0 C:\\Users\\me\\Roaming\\Norvane\\Sync)",
                                 "note(same)"));
}

TEST(RoamingFolder, TheExecutablesFolderIsKeptToo) {
  const Afterlife after = InFreshProcess([](World& world) {
    world.Fail("SHGetFolderPathW", -5);
    Ask(world);
    world.ForgetScripts();
    Ask(world);
  });
  EXPECT_THAT(after.Calls({"SHGetFolderPathW", "note"}),
              ElementsAre("SHGetFolderPathW(null, 32794, null, 0)", "note(0 C:\\\\Program\\)",
                          "note(0 C:\\\\Program\\)"));
}

}  // namespace

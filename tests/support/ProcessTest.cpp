// Programs run with what they were given, and how they end is told.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace zdx_test {

namespace {

// What this very program does if a test starts it anew, by this variable of its environment.
constexpr const char* kPartVariable = "ZDX_PROCESS_TEST_PART";

std::string Part() { return EnvironmentVariable(kPartVariable); }

// A run of the running test alone, in which it plays `part`.  What plays one gives none.
Command Playing(const std::string& part) {
  if (!Part().empty()) std::abort();
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  Command command;
  command.program = ThisProgram();
  command.arguments = {std::string("--gtest_filter=") + test.test_suite_name() + "." + test.name()};
  command.environment = {std::string(kPartVariable) + "=" + part};
  return command;
}

TEST(Process, TellsWhatTheProgramWroteAndReturned) {
  if (!Part().empty()) {
    std::fputs("heard", stderr);
    std::exit(7);
  }
  const Outcome outcome = RunCommand(Playing("child"));
  EXPECT_EQ(outcome.exitCode, 7);
  EXPECT_EQ(outcome.endedBy, "");
  EXPECT_NE(outcome.out.find("[ RUN "), std::string::npos);
  EXPECT_EQ(outcome.err, "heard");
}

TEST(Process, AVariableOfTheEnvironmentMayHoldAnyText) {
  const std::string text = "\xD1\x87 \xE5\x9B\xB3 \"=' \\";
  if (Part() == text) std::exit(7);
  if (!Part().empty()) std::exit(8);
  EXPECT_EQ(RunCommand(Playing(text)).exitCode, 7);
}

TEST(Process, GetsItsArgumentsAsTheyAreGiven) {
  const std::vector<std::string> given = {
      "",        " ",       "a b",      "a\tb",      "\"",
      "a\"b",    "\"a b\"", "\\",       "\\\\",      "a b\\",
      "a b\\\\", "\\\"",    "a\\\\\"b", "a\\b\\\\c", "\\\\server\\share\\",
      "'",       "%PATH%",  "^&|<>",    "/x",        "--",
      "end"};
  if (!Part().empty()) {
    const std::vector<std::string> all = testing::internal::GetArgvs();
    const bool same =
        all.size() > given.size() && std::equal(given.rbegin(), given.rend(), all.rbegin());
    std::exit(same ? 7 : 8);
  }
  Command command = Playing("child");
  command.arguments.insert(command.arguments.end(), given.begin(), given.end());
  EXPECT_EQ(RunCommand(command).exitCode, 7);
}

TEST(Process, WorksInTheFolderGiven) {
  if (!Part().empty()) std::exit(std::filesystem::exists("here.txt") ? 7 : 8);
  const ScratchFolder folder;
  folder.Write("here.txt", "");
  Command command = Playing("child");
  command.workingFolder = folder.path();
  EXPECT_EQ(RunCommand(command).exitCode, 7);
}

TEST(Process, ThatAbortsReturnsNothing) {
  if (!Part().empty()) std::abort();
  const Outcome outcome = RunCommand(Playing("child"));
  EXPECT_EQ(outcome.exitCode, -1);
  EXPECT_NE(outcome.endedBy, "");
}

TEST(Process, ThatCrashesReturnsNothing) {
  if (!Part().empty()) __builtin_trap();
  const Outcome outcome = RunCommand(Playing("child"));
  EXPECT_EQ(outcome.exitCode, -1);
  EXPECT_NE(outcome.endedBy, "");
}

TEST(Process, IsEndedAtItsLimit) {
  if (!Part().empty()) std::this_thread::sleep_for(std::chrono::minutes(1));
  Command command = Playing("child");
  command.limit = std::chrono::seconds(1);
  const Outcome outcome = RunCommand(command);
  EXPECT_EQ(outcome.exitCode, -1);
  EXPECT_EQ(outcome.endedBy, "its limit");
}

TEST(Process, OfNoProgramIsAnError) {
  const ScratchFolder folder;
  EXPECT_FALSE(CanRun(folder.path() / "nothing"));
  EXPECT_FALSE(CanRun(folder.Write("text.exe", "no program")));
  EXPECT_TRUE(CanRun(ThisProgram()));
  EXPECT_THROW(RunCommand({folder.path() / "nothing", {}, {}, {}}), std::system_error);
}

}  // namespace

}  // namespace zdx_test

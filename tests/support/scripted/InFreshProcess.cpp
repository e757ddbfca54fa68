#include "support/scripted/InFreshProcess.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>

#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"

namespace scripted {
namespace {

// What tells the child which of the test's calls it is for, and where its log goes.
constexpr const char* kCallVariable = "ZDX_FRESH_PROCESS_CALL";
constexpr const char* kLogVariable = "ZDX_FRESH_PROCESS_LOG";
// The log's first line, which a child writes that came to its call.
constexpr std::string_view kBegin = "begin\n";

// Counts the calls of each test, from 1.
class CallCounter : public testing::EmptyTestEventListener {
 public:
  static int Next() {
    static CallCounter* const counter = [] {
      auto* const made = new CallCounter;
      testing::UnitTest::GetInstance()->listeners().Append(made);
      return made;
    }();
    return ++counter->count_;
  }
  void OnTestEnd(const testing::TestInfo& /*test*/) override { count_ = 0; }

 private:
  int count_ = 0;
};

// What the exit handlers use still, so never ends.  Static, so that the leak checker sees that it
// is in use.
struct Child {
  World world;
  std::ofstream log;
};
Child* child = nullptr;

[[noreturn]] void RunChild(const std::function<void(World&)>& body) {
  child = new Child;
  child->log.open(zdx_test::PathOf(zdx_test::EnvironmentVariable(kLogVariable)), std::ios::binary);
  child->log << kBegin << std::flush;
  child->world.MirrorTo(child->log);
  int code = 0;
  try {
    body(child->world);
  } catch (...) {
    code = kBodyThrew;
  }
  std::exit(code);
}

// A line is an operation, a tab and the call's text.
std::vector<Call> Parse(const std::string& bytes) {
  if (!bytes.starts_with(kBegin)) throw std::runtime_error("the child didn't come to its call");
  std::vector<Call> calls;
  for (std::size_t start = kBegin.size(); start < bytes.size();) {
    const std::size_t tab = bytes.find('\t', start);
    const std::size_t end = bytes.find('\n', start);
    if (tab == std::string::npos || end == std::string::npos || tab > end) {
      throw std::runtime_error("the child's log is torn");
    }
    calls.push_back({bytes.substr(start, tab - start), bytes.substr(tab + 1, end - tab - 1)});
    start = end + 1;
  }
  return calls;
}

std::string Ending(const zdx_test::Outcome& outcome) {
  if (!outcome.endedBy.empty()) return "was ended by " + outcome.endedBy;
  if (outcome.exitCode == kBodyThrew) return "threw";
  return "exited with " + std::to_string(outcome.exitCode);
}

std::string LastOf(const std::vector<Call>& log) {
  return log.empty() ? "its start" : log.back().text;
}

zdx_test::Outcome RunChildFor(int call, const std::filesystem::path& log) {
  const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
  zdx_test::Command command;
  command.program = zdx_test::ThisProgram();
  command.arguments = {std::string("--gtest_filter=") + test.test_suite_name() + "." + test.name()};
  command.environment = {std::string(kCallVariable) + "=" + std::to_string(call),
                         std::string(kLogVariable) + "=" + zdx_test::BytesOf(log)};
  return zdx_test::RunCommand(command);
}

enum class MayDie { kNo, kYes };

Afterlife Run(const std::function<void(World& world)>& body, MayDie mayDie) {
  const int call = CallCounter::Next();
  if (const std::string own = zdx_test::EnvironmentVariable(kCallVariable); !own.empty()) {
    if (own == std::to_string(call)) RunChild(body);
    return {};
  }
  const zdx_test::ScratchFile log("", ".log");
  const zdx_test::Outcome outcome = RunChildFor(call, log.path());
  const Afterlife afterlife = {outcome.exitCode, Parse(zdx_test::ContentsOf(log.path()))};
  if (mayDie == MayDie::kNo && afterlife.exitCode != 0) {
    ADD_FAILURE() << "the child " << Ending(outcome) << ", after " << LastOf(afterlife.log) << "\n"
                  << outcome.err;
  }
  return afterlife;
}

}  // namespace

Afterlife InFreshProcess(const std::function<void(World& world)>& body) {
  return Run(body, MayDie::kNo);
}

Afterlife InFreshProcessThatMayDie(const std::function<void(World& world)>& body) {
  return Run(body, MayDie::kYes);
}

}  // namespace scripted

#include "support/Process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <system_error>
#include <thread>

namespace zdx_test {

namespace {

void Check(int error, const char* what) {
  if (error != 0) throw std::system_error(error, std::generic_category(), what);
}

// A nameless file that takes what the program writes: unlike a pipe it is never full.
class Capture {
 public:
  Capture() : file_(std::tmpfile(), &std::fclose) {
    if (!file_) Check(errno, "tmpfile");
  }

  int Descriptor() const { return fileno(file_.get()); }

  std::string Text() const {
    std::string text;
    std::array<char, 4096> part = {};
    std::rewind(file_.get());
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), file_.get())) {
      text.append(part.data(), count);
    }
    return text;
  }

 private:
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file_;
};

class FileActions {
 public:
  FileActions() { Check(posix_spawn_file_actions_init(&actions_), "posix_spawn"); }
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;

  posix_spawn_file_actions_t* Get() { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_;
};

// The writing end of a pipe whose reading end is closed.
class UnreadPipe {
 public:
  UnreadPipe() {
    std::array<int, 2> ends = {};
    if (pipe(ends.data()) != 0) Check(errno, "pipe");
    close(ends[0]);
    writing_ = ends[1];
  }
  ~UnreadPipe() { close(writing_); }
  UnreadPipe(const UnreadPipe&) = delete;
  UnreadPipe& operator=(const UnreadPipe&) = delete;

  int Descriptor() const { return writing_; }

 private:
  int writing_ = -1;
};

void DirectOutput(posix_spawn_file_actions_t* actions, OutputTo output, int capture, int unread) {
  switch (output) {
    case OutputTo::kCapture:
      Check(posix_spawn_file_actions_adddup2(actions, capture, STDOUT_FILENO), "stdout");
      break;
    case OutputTo::kNowhere:
      Check(posix_spawn_file_actions_addclose(actions, STDOUT_FILENO), "stdout");
      break;
    case OutputTo::kBrokenPipe:
      Check(posix_spawn_file_actions_adddup2(actions, unread, STDOUT_FILENO), "stdout");
      break;
    case OutputTo::kFullDevice:
      Check(posix_spawn_file_actions_addopen(actions, STDOUT_FILENO, "/dev/full", O_WRONLY, 0),
            "stdout");
      break;
  }
}

// The test's environment with `changes` in place of the variables of the same names.
std::vector<std::string> Environment(const std::vector<std::string>& changes) {
  const auto isChanged = [&](std::string_view variable) {
    return std::any_of(changes.begin(), changes.end(), [&](const std::string& change) {
      return variable.starts_with(std::string_view(change).substr(0, change.find('=') + 1));
    });
  };
  std::vector<std::string> all = changes;
  for (char** variable = environ; *variable != nullptr; ++variable) {
    if (!isChanged(*variable)) all.emplace_back(*variable);
  }
  return all;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

pid_t Start(const Command& command, posix_spawn_file_actions_t* actions) {
  std::vector<std::string> arguments = {command.program.native()};
  arguments.insert(arguments.end(), command.arguments.begin(), command.arguments.end());
  std::vector<std::string> environment = Environment(command.environment);
  pid_t process = -1;
  Check(posix_spawn(&process, arguments.front().c_str(), actions, nullptr,
                    Pointers(arguments).data(), Pointers(environment).data()),
        arguments.front().c_str());
  return process;
}

// How the process ended, as waitpid tells it; ends it first if it takes too long.
int WaitFor(pid_t process, std::chrono::seconds limit, bool& late) {
  const auto last = std::chrono::steady_clock::now() + limit;
  for (;;) {
    int status = 0;
    const pid_t ended = waitpid(process, &status, late ? 0 : WNOHANG);
    if (ended == process) return status;
    if (ended < 0 && errno != EINTR) Check(errno, "waitpid");
    if (!late && std::chrono::steady_clock::now() > last) {
      late = true;
      kill(process, SIGKILL);
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

}  // namespace

bool CanRun(const std::filesystem::path& program) { return access(program.c_str(), X_OK) == 0; }

Outcome RunCommand(const Command& command) {
  const Capture out;
  const Capture err;
  const UnreadPipe unread;
  FileActions actions;
  DirectOutput(actions.Get(), command.output, out.Descriptor(), unread.Descriptor());
  Check(posix_spawn_file_actions_adddup2(actions.Get(), err.Descriptor(), STDERR_FILENO), "stderr");
  if (!command.workingFolder.empty()) {
    Check(posix_spawn_file_actions_addchdir_np(actions.Get(), command.workingFolder.c_str()),
          "working folder");
  }
  bool late = false;
  const int status = WaitFor(Start(command, actions.Get()), command.limit, late);
  Outcome outcome;
  if (late) {
    outcome.endedBy = "its limit";
  } else if (WIFSIGNALED(status)) {
    outcome.endedBy = "signal " + std::to_string(WTERMSIG(status));
  } else {
    outcome.exitCode = WEXITSTATUS(status);
  }
  outcome.out = out.Text();
  outcome.err = err.Text();
  return outcome;
}

std::filesystem::path ThisProgram() { return std::filesystem::read_symlink("/proc/self/exe"); }

std::size_t CountOpenFiles() {
  const auto files = std::filesystem::directory_iterator("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

std::string EnvironmentVariable(const std::string& name) {
  const char* const value = std::getenv(name.c_str());
  return value == nullptr ? "" : value;
}

}  // namespace zdx_test

#include "support/scripted/InFreshProcess.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace scripted {
namespace {

// Static, so that the leak checker sees at exit that the child's world is still in use.
World* worldOfThisProcess = nullptr;

[[noreturn]] void RunChild(const std::function<void(World&)>& body, int descriptor) {
  worldOfThisProcess = new World;
  worldOfThisProcess->MirrorTo(descriptor);
  int code = 0;
  try {
    body(*worldOfThisProcess);
  } catch (...) {
    code = kBodyThrew;
  }
  std::exit(code);
}

std::string ReadAll(int descriptor) {
  std::string bytes;
  char piece[4096];
  for (;;) {
    const ssize_t got = read(descriptor, piece, sizeof piece);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return bytes;
    bytes.append(piece, static_cast<std::size_t>(got));
  }
}

// A line is an operation, a tab and the call's text.
std::vector<Call> Parse(const std::string& bytes) {
  std::vector<Call> calls;
  for (std::size_t start = 0; start < bytes.size();) {
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

// How the child ended, as waitpid tells it.
int WaitFor(pid_t child) {
  int status = 0;
  while (waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::runtime_error("the child is lost");
  }
  return status;
}

std::string Ending(int status) {
  if (WIFSIGNALED(status)) return "was ended by signal " + std::to_string(WTERMSIG(status));
  if (WEXITSTATUS(status) == kBodyThrew) return "threw";
  return "exited with " + std::to_string(WEXITSTATUS(status));
}

std::string LastOf(const std::vector<Call>& log) {
  return log.empty() ? "its start" : log.back().text;
}

enum class MayDie { kNo, kYes };

Afterlife Run(const std::function<void(World& world)>& body, MayDie mayDie) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  // What is still buffered would otherwise be written by both.
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) {
    close(ends[0]);
    RunChild(body, ends[1]);
  }
  close(ends[1]);
  const std::string bytes = ReadAll(ends[0]);
  close(ends[0]);
  const int status = WaitFor(child);
  Afterlife afterlife;
  afterlife.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  afterlife.log = Parse(bytes);
  if (mayDie == MayDie::kNo && afterlife.exitCode != 0) {
    ADD_FAILURE() << "the child " << Ending(status) << ", after " << LastOf(afterlife.log);
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

#include "measure/Process.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <fstream>
#include <stdexcept>

namespace bench {
namespace {

constexpr unsigned kSampleMicroseconds = 200;
constexpr int kCantRun = 127;

// In the child: becomes `command`, or ends.
[[noreturn]] void Become(const Command& command) {
  const int nowhere = open("/dev/null", O_WRONLY);
  dup2(nowhere, STDOUT_FILENO);
  std::vector<char*> arguments;
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  execvp(arguments[0], arguments.data());
  _exit(kCantRun);
}

void RequireSuccess(int status, const Command& command) {
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error("failed: " + command.front());
  }
}

// One number of /proc/PID/status, in bytes.
std::uint64_t StatusNumber(std::ifstream& file) {
  std::uint64_t kilobytes = 0;
  file >> kilobytes;
  return kilobytes * 1024;
}

void Look(pid_t process, Memory& memory) {
  std::ifstream file("/proc/" + std::to_string(process) + "/status");
  std::string word;
  while (file >> word) {
    if (word == "VmHWM:") memory.peakResident = std::max(memory.peakResident, StatusNumber(file));
    if (word == "RssAnon:") {
      memory.peakAnonymous = std::max(memory.peakAnonymous, StatusNumber(file));
    }
  }
}

bool IsAtExit(int status) { return status >> 8 == (SIGTRAP | (PTRACE_EVENT_EXIT << 8)); }

// The process has stopped itself and waits to be watched.
void Watch(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  if (ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACEEXIT | PTRACE_O_EXITKILL) != 0) {
    throw std::runtime_error("this system doesn't let processes be watched");
  }
  ptrace(PTRACE_CONT, process, nullptr, nullptr);
}

}  // namespace

double SecondsOf(const Command& command) {
  const auto start = std::chrono::steady_clock::now();
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("can't start a process");
  if (process == 0) Become(command);
  int status = 0;
  waitpid(process, &status, 0);
  const auto end = std::chrono::steady_clock::now();
  RequireSuccess(status, command);
  return std::chrono::duration<double>(end - start).count();
}

Memory MemoryOf(const Command& command) {
  const pid_t process = fork();
  if (process < 0) throw std::runtime_error("can't start a process");
  if (process == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    Become(command);
  }
  Watch(process);
  Memory memory;
  // The process's parts before the command takes its place don't count.
  bool isRunning = false;
  int status = 0;
  while (true) {
    const pid_t changed = waitpid(process, &status, WNOHANG);
    if (changed == 0) {
      if (isRunning) Look(process, memory);
      usleep(kSampleMicroseconds);
      continue;
    }
    if (changed < 0 || WIFEXITED(status) || WIFSIGNALED(status)) break;
    if (IsAtExit(status)) Look(process, memory);
    const int stop = WSTOPSIG(status);
    // The first trap tells that the command has taken its place.
    const bool isTrap = stop == SIGTRAP;
    isRunning = isRunning || isTrap;
    ptrace(PTRACE_CONT, process, nullptr, isTrap ? 0 : stop);
  }
  RequireSuccess(status, command);
  return memory;
}

}  // namespace bench

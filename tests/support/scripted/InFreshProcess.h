// Runs a piece of a test in a process of its own, to the end of its exit handlers.
//
// What the engine keeps for the life of a process can't be started anew in this one, and what it
// does at exit can't be seen from inside.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "support/scripted/World.h"

namespace scripted {

// What came back from the process.
struct Afterlife {
  // 0 if the body returned and the process then ended cleanly; kBodyThrew if it threw; -1 if it was
  // ended, by a signal, an exception that nobody handled or std::abort.
  int exitCode = -1;
  // The calls, those of the exit handlers included.
  std::vector<Call> log;

  std::vector<std::string> Calls() const { return Texts(log); }
  std::vector<std::string> Calls(std::initializer_list<std::string_view> operations) const {
    return Texts(log, operations);
  }
};

inline constexpr int kBodyThrew = 70;

// Starts the test program anew with the running test alone.  When that comes to this very call it
// runs `body` in a world that is never torn down, and leaves by std::exit, so that the exit
// handlers run; so what stands before the call runs in both processes, and an earlier call of the
// test tells of nothing in the child.  `body` tells what it finds by World::Note: an expectation
// that fails in the child wouldn't reach the parent.  The calling test fails unless the child exits
// with 0.
Afterlife InFreshProcess(const std::function<void(World& world)>& body);

// The same for a body that does what callers mustn't: it may end in any way. What it called until
// then is in the log.
Afterlife InFreshProcessThatMayDie(const std::function<void(World& world)>& body);

}  // namespace scripted

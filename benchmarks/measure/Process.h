#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

using Command = std::vector<std::string>;

// Runs `command` to its end, with its output thrown away, and returns the seconds that passed from
// before its start until its end was noticed.  Throws std::runtime_error if it fails.
double SecondsOf(const Command& command);

// Memory of a process in bytes.
struct Memory {
  // The most that wasn't backed by a file: heap, stack and the like.  The greatest of what was
  // seen every fifth of a millisecond and, exactly, at the process's last moment.
  std::uint64_t peakAnonymous = 0;
  // The most with the pages of mapped files, as the system counts it.
  std::uint64_t peakResident = 0;
};

// Runs `command` to its end under watch.  Throws std::runtime_error if it fails.
Memory MemoryOf(const Command& command);

}  // namespace bench

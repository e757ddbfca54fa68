#include "malformed/Usage.h"

#include <windows.h>
// After windows.h.
#include <psapi.h>

namespace damage {
namespace {

// The library allocates by a function of its own, so what counts is what the process has in memory.
PROCESS_MEMORY_COUNTERS before;

PROCESS_MEMORY_COUNTERS Memory() {
  PROCESS_MEMORY_COUNTERS counters = {};
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return counters;
}

double Seconds(const FILETIME& time) {
  const ULARGE_INTEGER ticks = {{time.dwLowDateTime, time.dwHighDateTime}};
  return static_cast<double>(ticks.QuadPart) * 1e-7;
}

}  // namespace

double ProcessorSeconds() {
  FILETIME begin = {};
  FILETIME end = {};
  FILETIME kernel = {};
  FILETIME user = {};
  GetProcessTimes(GetCurrentProcess(), &begin, &end, &kernel, &user);
  return Seconds(kernel) + Seconds(user);
}

void WatchMemory() { before = Memory(); }

std::size_t MostMemory() {
  const PROCESS_MEMORY_COUNTERS now = Memory();
  const bool isNew = now.PeakWorkingSetSize > before.PeakWorkingSetSize;
  return isNew ? now.PeakWorkingSetSize - before.WorkingSetSize : 0;
}

}  // namespace damage

// What this process uses.
#pragma once

#include <cstddef>

namespace damage {

// The time of the processor so far.
double ProcessorSeconds();

// Watches the memory from now on.
void WatchMemory();

// The bytes in use at their most since then, beyond those that were in use at that moment; 0 where
// the system can't tell because there were never more than some time before that.
std::size_t MostMemory();

}  // namespace damage

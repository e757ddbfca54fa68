// Reading a damaged file, and what that costs.
#pragma once

#include <cstddef>
#include <string>

#include "support/PublicRead.h"

namespace damage {

// What a reading took: time of the processor, and memory at its most beyond what was in use before.
struct Cost {
  double seconds = 0;
  std::size_t bytes = 0;
};

// An answer, or the status that the file was refused with.
struct Outcome {
  zdx_test::Reading reading;
  bool refused = false;
  Cost cost;
};

// Reads `bytes` as a file that ends in `suffix`.  Fails the test if the file neither gives an
// answer nor is refused as a file, or if that takes more than a second or 64 MiB and four times its
// size.
Outcome ReadAtFairCost(const std::string& bytes, const std::string& suffix = ".dwg");

}  // namespace damage

#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "support/drawing/DrawingSpec.h"

namespace drawing {

// Gives out handles, none twice and none that the spec chose for an object of its own.
class Handles {
 public:
  explicit Handles(const DrawingSpec& spec);

  std::string Next();

  // `chosen` itself, or the next one if it is empty.
  std::string Or(const std::string& chosen);

  // Above all handles given out or chosen.
  std::string Seed() const;

 private:
  std::set<std::uint64_t> chosen_;
  std::uint64_t next_ = 1;
};

}  // namespace drawing

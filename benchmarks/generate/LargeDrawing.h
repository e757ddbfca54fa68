#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace bench {

// What a generated drawing holds.
struct Counts {
  std::uint64_t bytes = 0;
  std::uint64_t lines = 0;
  std::uint64_t polylines = 0;
  std::uint64_t vertices = 0;
  std::uint64_t circles = 0;
  std::uint64_t texts = 0;
  std::uint64_t inserts = 0;
  std::uint64_t attributes = 0;
  std::uint64_t layers = 0;
  std::uint64_t blocks = 0;
  std::uint64_t namedObjects = 0;
};

// Name and value of a property that a reader of the drawing must tell, in the drawing's order.
using Expected = std::vector<std::pair<std::string, std::string>>;

struct Generated {
  Counts counts;
  Expected expected;
};

// Writes a drawing of about `bytes` bytes to `path`: the same bytes for the same size, whatever
// the machine.  The file is never smaller than its tables and objects.  Throws std::system_error if
// the file can't be written.
Generated WriteLargeDrawing(const std::string& path, std::uint64_t bytes);

}  // namespace bench

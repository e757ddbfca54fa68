// From a handle to the place of its object.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// The objects with a handle between two places of a file.  Where a handle comes twice the first
// object has it; the handle 0 is none.
class ObjectIndex {
 public:
  // Goes once over the objects from `begin` to `end`.
  static ObjectIndex Build(const TagStream& stream, std::size_t begin, std::size_t end);

  // The place of the object with that handle.
  std::optional<std::size_t> Find(std::uint64_t handle) const;
  std::size_t size() const { return entries_.size(); }

 private:
  struct Entry {
    std::uint64_t handle;
    std::uint64_t at;
  };

  std::vector<Entry> entries_;  // ascending by handle
};

}  // namespace zdx::dxf

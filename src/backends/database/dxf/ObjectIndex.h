// From a handle to the place of its object.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// The handle of the object that begins at `start`; 0 if it has none.
std::uint64_t ReadHandle(const TagStream& stream, const ObjectStart& start);

// The objects with a handle between two places of a file.  Where a handle comes twice the first
// object has it; the handle 0 is none.
class ObjectIndex {
 public:
  // Goes once over the objects from `begin` to `end`.
  static ObjectIndex Build(const TagStream& stream, std::size_t begin, std::size_t end);

  // The place of the object with that handle.
  std::optional<std::size_t> Find(std::uint64_t handle) const;
  std::size_t size() const { return compact_.size() + wide_.size(); }
  // Where the objects that may name files begin, in order.  They are noted on the way, since to
  // look for them alone costs as much again.
  const std::vector<std::size_t>& fileObjects() const { return fileObjects_; }

 private:
  void Add(std::uint64_t handle, std::uint64_t at);

  // Nearly all handles and places fit 32 bits each: the handle in the upper half, the place in the
  // lower.  Ascending.
  std::vector<std::uint64_t> compact_;
  // The others, as handle and place.  Ascending.
  std::vector<std::pair<std::uint64_t, std::uint64_t>> wide_;
  std::vector<std::size_t> fileObjects_;
};

}  // namespace zdx::dxf

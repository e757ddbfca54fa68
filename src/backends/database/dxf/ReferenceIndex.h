// The references of every block.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "backends/database/dxf/BlockTable.h"

namespace zdx::dxf {

// The name that the reference whose tags begin at `body` gives, and its handle, or 0.
struct ReferenceTags {
  std::uint64_t handle = 0;
  std::optional<Tag> name;
  // Where tags are damaged; kNowhere if none are.
  std::size_t damagedAt = kNowhere;
};
ReferenceTags ReadReference(const TagStream& stream, std::size_t body);

// References of blocks that the drawing doesn't have aren't among them.
class ReferenceIndex {
 public:
  struct Reference {
    const Block* block = nullptr;
    std::uint64_t handle = 0;
    std::size_t at = 0;
  };

  ReferenceIndex() = default;
  // Reads the references at the places `references`.  `blocks` must outlive the index.
  ReferenceIndex(const BlockSource& source, const BlockTable& blocks,
                 const std::vector<std::size_t>& references);

  // Those of one block by their handles, then those without one by their places.
  std::span<const Reference> Of(const Block& block) const;

 private:
  std::vector<Reference> references_;
};

}  // namespace zdx::dxf

#include "backends/database/dxf/ReferenceIndex.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <tuple>

#include "backends/database/dxf/GroupedTags.h"

namespace zdx::dxf {
namespace {

// From a name as the file spells it to its block.  A drawing has many references of few names, of
// which some are remembered.
class NamedBlocks {
 public:
  NamedBlocks(const BlockSource& source, const BlockTable& blocks)
      : source_(source), blocks_(blocks) {}

  const Block* Find(std::string_view name) {
    Known& known = known_[std::hash<std::string_view>()(name) % known_.size()];
    if (known.name != name || known.name.empty()) {
      known = {name, blocks_.OfName(source_.nameOf(name))};
    }
    return known.block;
  }

 private:
  struct Known {
    std::string_view name;
    const Block* block = nullptr;
  };

  const BlockSource& source_;
  const BlockTable& blocks_;
  std::array<Known, 64> known_ = {};
};

// 0, which is no handle, becomes the greatest.
auto OrderOf(const ReferenceIndex::Reference& reference) {
  return std::tuple(reference.block, reference.handle - 1, reference.at);
}

}  // namespace

ReferenceTags ReadReference(const TagStream& stream, std::size_t body) {
  ReferenceTags reference;
  GroupedTags tags(stream, body);
  HeadReader head(stream.form());
  Tag tag;
  while (!reference.name && tags.Next(tag)) {
    head.Take(tags, tag);
    if (tag.code == kNameCode && tags.IsOwn() && !tag.value.empty()) reference.name = tag;
  }
  reference.handle = head.head().handle;
  reference.damagedAt = tags.tags().damagedAt();
  return reference;
}

ReferenceIndex::ReferenceIndex(const BlockSource& source, const BlockTable& blocks,
                               const std::vector<std::size_t>& references) {
  const TagStream& stream = *source.stream;
  NamedBlocks named(source, blocks);
  references_.reserve(references.size());
  for (const std::size_t at : references) {
    const ReferenceTags tags = ReadReference(stream, stream.ObjectAt(at).body);
    source.warnOfDamage(tags.damagedAt);
    const Block* const block = tags.name ? named.Find(tags.name->value) : nullptr;
    if (block != nullptr) {
      references_.push_back({block, tags.handle, at});
    } else if (tags.name) {
      source.warn(L"A reference names a block that the drawing doesn't have.", at);
    } else if (tags.damagedAt == kNowhere) {
      source.warn(L"A reference names no block.", at);
    }
  }
  std::sort(references_.begin(), references_.end(),
            [](const Reference& a, const Reference& b) { return OrderOf(a) < OrderOf(b); });
}

std::span<const ReferenceIndex::Reference> ReferenceIndex::Of(const Block& block) const {
  const auto before = [](const Reference& reference, const Block* b) {
    return std::less<>()(reference.block, b);
  };
  const auto behind = [](const Block* b, const Reference& reference) {
    return std::less<>()(b, reference.block);
  };
  const auto first = std::lower_bound(references_.begin(), references_.end(), &block, before);
  const auto end = std::upper_bound(first, references_.end(), &block, behind);
  return {first, end};
}

}  // namespace zdx::dxf

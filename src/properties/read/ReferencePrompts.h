// The prompts that a block has for the attributes of its references.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/zndb/ZnDbBlocks.h"

namespace ZDXEngine {

// Those of one reference's block.  The block is read once, at the first question: a reference with
// many attributes would otherwise read all definitions for each of them.
class ReferencePrompts {
 public:
  // `reference` stays open as long as this lives.
  explicit ReferencePrompts(const ZnDbBlockReference& reference) : reference_(reference) {}

  // The prompt of the definition that has this tag and stands at `ordinal` among the block's
  // definitions, counted from 1; else of the first that has the tag; empty if none has.
  std::wstring Find(const std::wstring& tag, int ordinal);

 private:
  struct Definition {
    std::wstring tag;
    std::wstring prompt;
  };

  // Nothing if the block can't be read or has no definitions.
  std::vector<Definition> ReadDefinitions() const;
  void Read();

  const ZnDbBlockReference& reference_;
  std::optional<std::vector<Definition>> definitions_;
  std::unordered_map<std::wstring, std::size_t> firstWithTag_;
};

}  // namespace ZDXEngine

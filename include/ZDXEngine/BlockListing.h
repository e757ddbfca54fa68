// Which blocks of a drawing carry attributes, so that people find the names to ask for.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// What a block says of one attribute of its references.
struct AttributeDefinitionInfo {
  std::wstring tag;
  // The question that is asked for the value; may be empty.
  std::wstring prompt;
  // The value that new references get, or the value of a constant attribute.
  std::wstring text;
  bool isConstant = false;
};

struct BlockInfo {
  std::wstring name;
  // In stored order; at least one.
  std::vector<AttributeDefinitionInfo> definitions;
  // How many references name this very block, wherever in the drawing they stand.
  std::uint64_t references = 0;
  // How many name one of the anonymous blocks that carry the variations of a dynamic block; 0 for
  // every other block.
  std::uint64_t variations = 0;
};

// Opens the drawing at `path` and lists, in table order, the blocks that have attribute
// definitions: without model space and the layouts' papers, whose attributes can't be asked for,
// and without the anonymous blocks of dynamic blocks, which are told with those.  Texts that can't
// be read are empty.  Throws a FileError if the drawing can't be opened.  Start the engine first,
// and make one call at a time.
ZDXENGINE_API std::vector<BlockInfo> ListBlocksWithAttributes(const std::wstring& path);

}  // namespace ZDXEngine

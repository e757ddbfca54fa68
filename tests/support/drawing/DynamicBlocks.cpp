#include "support/drawing/DynamicBlocks.h"

#include "support/drawing/Tokens.h"

namespace drawing {
namespace {

bool IsMarked(const BlockSpec& block, Version version, DynamicMark with) {
  return block.isDynamic && HasObjects(version) &&
         (block.dynamicMark == DynamicMark::Both || block.dynamicMark == with);
}

}  // namespace

bool IsDynamicHidden(const BlockSpec& block, Version version) {
  return block.isDynamic && HasObjects(version) && version < Version::AC1024;
}

std::vector<NamedObject> RecordExtension(const BlockSpec& block, Version version) {
  std::vector<NamedObject> entries = block.extension;
  if (IsMarked(block, version, DynamicMark::Entry)) {
    entries.emplace_back(kDynamicBlockKey, Xrecord());
  }
  return entries;
}

std::vector<Tag> RecordData(const BlockSpec& block, Version version, const std::string& original) {
  std::vector<Tag> tags;
  if (IsMarked(block, version, DynamicMark::TrueName)) {
    tags = {{1001, kTrueNameApplication}, {1000, block.name}};
  }
  if (!block.copyOf.empty()) {
    tags.insert(tags.end(), {Tag(1001, kCopyApplication), Tag(1070, 1), Tag(1005, original)});
  }
  tags.insert(tags.end(), block.extendedData.begin(), block.extendedData.end());
  return tags;
}

}  // namespace drawing

#include "backends/database/dxf/GroupedTags.h"

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {

bool GroupedTags::Next(Tag& tag) {
  while (tags_.Next(tag)) {
    if (tag.code == kGroupCode) {
      const std::string_view mark = Trimmed(tag.value);
      group_ = mark.starts_with(kGroupBegin) ? mark : std::string_view();
      continue;
    }
    if (tag.code == kSubclassCode || tag.code == kApplicationCode) group_ = {};
    return true;
  }
  return false;
}

void HeadReader::Take(const GroupedTags& tags, const Tag& tag) {
  if (tag.code == kSubclassCode) {
    ++markers_;
  } else if (!tags.IsOwn()) {
    if (tag.code == kHardValueCode && tags.group() == kExtensionGroup) {
      head_.extension = ParseHandle(tag.value);
    }
  } else if (tag.code == kOnPaperCode && markers_ < 2) {
    std::int64_t value = 0;
    head_.isOnPaper = ParseInteger(form_, tag.value, value) && value != 0;
  } else if (markers_ == 0) {
    if (tag.code == kHandleCode && head_.handle == 0) head_.handle = ParseHandle(tag.value);
    if (tag.code == kOwnerCode && head_.owner == 0) head_.owner = ParseHandle(tag.value);
  }
}

EntityHead ReadHead(const TagStream& stream, std::size_t body) {
  GroupedTags tags(stream, body);
  HeadReader reader(stream.form());
  Tag tag;
  while (!reader.IsComplete() && tags.Next(tag)) reader.Take(tags, tag);
  return reader.head();
}

}  // namespace zdx::dxf

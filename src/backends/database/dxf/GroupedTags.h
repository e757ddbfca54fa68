// The tags of one object, told apart by the group of an application that they stand in.
#pragma once

#include <string_view>

#include "backends/database/dxf/TagStream.h"

namespace zdx::dxf {

// An application's group begins and ends with a tag of code 102.  A group that isn't closed ends at
// the next subclass marker, or where extended data begins.
class GroupedTags {
 public:
  GroupedTags(const TagStream& stream, std::size_t body) : tags_(stream, body) {}

  // As ObjectTags::Next, but for the tags that begin and end groups, which aren't told.
  bool Next(Tag& tag);
  // What begins the group of the last tag; empty for the object's own tags.
  std::string_view group() const { return group_; }
  bool IsOwn() const { return group_.empty(); }
  const ObjectTags& tags() const { return tags_; }

 private:
  ObjectTags tags_;
  std::string_view group_;
};

// What all entities begin with.
struct EntityHead {
  std::uint64_t handle = 0;
  std::uint64_t owner = 0;
  // The extension dictionary.
  std::uint64_t extension = 0;
  bool isOnPaper = false;
};

// Takes what `tag` tells of the head, given the tags' group and how many subclass markers came
// before.
class HeadReader {
 public:
  explicit HeadReader(Form form) : form_(form) {}
  void Take(const GroupedTags& tags, const Tag& tag);
  const EntityHead& head() const { return head_; }
  // Whether no more of the head can follow.  Entities without markers may have it anywhere.
  bool IsComplete() const { return markers_ > 1; }
  bool HasMarkers() const { return markers_ > 0; }

 private:
  Form form_;
  EntityHead head_;
  unsigned markers_ = 0;
};

// The head of the entity whose tags begin at `body`.
EntityHead ReadHead(const TagStream& stream, std::size_t body);

}  // namespace zdx::dxf

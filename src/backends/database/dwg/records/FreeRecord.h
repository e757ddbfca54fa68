// The content of a free record: group codes and values.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "backends/database/dwg/records/Format.h"

namespace zdx::dwg {

// One group.  Only texts and bytes are told.
struct Group {
  int code = 0;
  bool isText = false;
  // As stored: in the code page of that number, or UTF-16 with the low byte first.
  std::string_view text;
  std::uint16_t codePage = 0;
  // Of a group of bytes.
  std::string_view bytes;
};

// Goes through the groups in `bytes`, which outlive it.
class GroupReader {
 public:
  GroupReader(std::string_view bytes, Format format) : bytes_(bytes), format_(format) {}

  // The next group; nullopt at the end, and where the bytes make no sense.
  std::optional<Group> Next();
  bool endedByDamage() const { return damaged_; }

 private:
  std::optional<std::string_view> Take(std::size_t count);
  bool ReadText(Group& group);

  std::string_view bytes_;
  Format format_;
  bool damaged_ = false;
};

}  // namespace zdx::dwg

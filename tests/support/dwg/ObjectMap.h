#pragma once

#include <map>
#include <string>

#include "support/dwg/Fields.h"

namespace dwg {

// All records one after the other, and where each begins.
struct RecordArea {
  std::string bytes;
  std::map<Handle, std::size_t> offsets;
};

// `base` is added to the offsets.
RecordArea LayOut(const std::map<Handle, std::string>& records, std::size_t base);

// The object map, in pages of at most `pageSize` bytes.
std::string ObjectMap(const std::map<Handle, std::size_t>& offsets, std::size_t pageSize);

}  // namespace dwg

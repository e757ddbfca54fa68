// Objects that name files: pictures, underlays, point clouds, links, materials and layouts.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "backends/database/dxf/TagStream.h"
#include "backends/database/model/Drawing.h"

namespace zdx::dxf {

// Whether objects of that type may name files.
bool MayNameFiles(std::string_view type);

struct FileTag {
  model::FileUse use = model::FileUse::kImage;
  // Its value is the path, or holds it.
  Tag tag;
};

// The tags of the object at `start` that name files, in stored order.
struct FileTags {
  std::vector<FileTag> tags;
  // Where tags are damaged; kNowhere if none are.
  std::size_t damagedAt = kNowhere;
};
FileTags ReadFileTags(const TagStream& stream, const ObjectStart& start);

}  // namespace zdx::dxf

// Which files a walk lists, and as what.
#pragma once

#include "backends/database/model/Drawing.h"
#include "platform/econvey/ZnDwgDepends.h"

namespace zdx::walker {

// Bits of ZnDwgDepends::DwgDependsSettings beside those that list kinds of files.
inline constexpr ZnDwgDepends::DwgDependsSettings kFollowInnerOverlays = 0x10;
inline constexpr ZnDwgDepends::DwgDependsSettings kNodeForEachRecord = 0x400;
inline constexpr ZnDwgDepends::DwgDependsSettings kDependentRecords = 0x1000;

struct FileKind {
  ZnDwgDepends::FileType type;
  // The bit that lists such files.
  ZnDwgDepends::DwgDependsSettings bit;
  // What the host's search is told of them.
  int hint;
  // Whether a drawing that names the same file in several records has one node for it.
  bool isShared;
};

const FileKind& KindOf(model::FileUse use);
bool IsDrawing(model::FileUse use);
// Whether a walk with these settings lists `reference`.
bool IsListed(const model::FileReference& reference, ZnDwgDepends::DwgDependsSettings settings);

}  // namespace zdx::walker

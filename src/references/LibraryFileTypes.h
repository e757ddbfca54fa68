// The engine's own classes of files.
#pragma once

#include "ZDXEngine/DwgDependentFile.h"
#include "platform/econvey/ZnDwgDepends.h"

namespace ZDXEngine {

// What belongs to no class of its own; also each file that a vertical service tells.
inline constexpr FileType kOtherFile{10};

// The class of what the library calls `type`.
FileType ClassOfFile(ZnDwgDepends::FileType type);
// Whether a reference to what the library calls `type` may be given another path.
bool CanBeRepathed(ZnDwgDepends::FileType type);

}  // namespace ZDXEngine

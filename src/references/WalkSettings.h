// What the walking library is asked to look for.
#pragma once

#include "ZDXEngine/FileReferenceMgr.h"
#include "platform/econvey/ZnDwgDepends.h"

namespace ZDXEngine {

// The library's mask for `settings`.
ZnDwgDepends::DwgDependsSettings SettingsMask(const DependencySettings& settings);

}  // namespace ZDXEngine

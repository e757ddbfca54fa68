// The walk through a DWG file's application-information block.
#pragma once

#include <string>

#include "properties/appinfo/ZnHsAppInfoNotifier.h"

namespace ZDXEngine {

// Tells `notifier` each property set that the file at `path` carries.  True if the block was found
// and every entry that it announces was delivered; after false those that came before the failure
// have been told all the same.  Never throws but for want of memory.
bool ReadAppInfo(const std::wstring& path, ZnHsAppInfoNotifier& notifier);

}  // namespace ZDXEngine

// What loads modules into the process.
#pragma once

#include "platform/zndb/ZnRx.h"

namespace ZDXEngine {

// The runtime's linker, looked up afresh at each call; null if what is registered as it is none.
// The entry must be there: without it the runtime itself isn't set up.
ZnRxDynamicLinker* DynamicLinker();

}  // namespace ZDXEngine

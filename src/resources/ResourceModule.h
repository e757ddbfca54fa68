// The module from which localised texts are read.
//
// The load-time entry point records the engine's module handle here; every read of a text goes
// through one lazily filled holder.
#pragma once

#include "platform/os/Os.h"

namespace ZDXEngine {

// Records the handle of the engine's own module, or null.  Called by the load-time entry point.
void SetModuleHandle(os::ModuleHandle module);

// The handle that texts are read with; null until a handle was recorded.  Filled at the first use
// that finds one recorded, and kept from then on.  When the process exits the handle, if any, goes
// to FreeLibrary, although no reference was taken for it: that is required as it stands.
os::ModuleHandle ResourceModule();

}  // namespace ZDXEngine

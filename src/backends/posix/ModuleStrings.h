// String tables of loaded modules, for a system whose modules don't carry any.
#pragma once

#include "platform/os/Os.h"

namespace zdx {

// The text `id` of one module, or null if it has none.  The text lives as long as the module.
using ModuleTextFinder = const wchar_t* (*)(unsigned int id);

// Makes `find` the string table of `module` until the process ends.  Called while the module is
// being loaded, before anyone reads from it; a second call for a module replaces the first.
void RegisterModuleStrings(os::ModuleHandle module, ModuleTextFinder find);

// True if `module` has a string table.
bool HasModuleStrings(os::ModuleHandle module);

}  // namespace zdx

// Loaded modules and what they export, with Windows' names and meanings.
#pragma once

#include "platform/os/Os.h"

namespace os {

// The module of that file name that the process has loaded, by the very name it was loaded by, or
// null.  No reference is taken.
ModuleHandle GetModuleHandleW(const wchar_t* name);
// The address of the function that `module` exports as `name`, or null.
void* GetProcAddress(ModuleHandle module, const char* name);

// What stands behind the operations above; each virtual operation is the one of the same name.
class ModuleProvider {
 public:
  virtual ~ModuleProvider() = default;
  virtual ModuleHandle GetModuleHandleW(const wchar_t* name) = 0;
  virtual void* GetProcAddress(ModuleHandle module, const char* name) = 0;
};

// As os::InstallProvider.
ModuleProvider* InstallModuleProvider(ModuleProvider* provider);

}  // namespace os

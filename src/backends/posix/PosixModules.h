// Loaded modules on POSIX systems.
#pragma once

#include "platform/os/Modules.h"

namespace zdx {

class PosixModules : public os::ModuleProvider {
 public:
  os::ModuleHandle GetModuleHandleW(const wchar_t* name) override;
  void* GetProcAddress(os::ModuleHandle module, const char* name) override;
};

}  // namespace zdx

// Loaded modules on Windows.
#pragma once

#include "platform/os/Modules.h"

namespace zdx {

class WindowsModules : public os::ModuleProvider {
 public:
  os::ModuleHandle GetModuleHandleW(const wchar_t* name) override;
  void* GetProcAddress(os::ModuleHandle module, const char* name) override;
};

}  // namespace zdx

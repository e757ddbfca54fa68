#include "backends/windows/WindowsModules.h"

#include "backends/System.h"

namespace zdx {

os::ModuleHandle WindowsModules::GetModuleHandleW(const wchar_t* /*name*/) { return nullptr; }

void* WindowsModules::GetProcAddress(os::ModuleHandle /*module*/, const char* /*name*/) {
  return nullptr;
}

os::ModuleHandle LoadModule(const wchar_t* /*name*/) { return nullptr; }

bool UnloadModule(const wchar_t* /*name*/) { return false; }

}  // namespace zdx

#include "backends/posix/PosixModules.h"

#include "backends/System.h"

namespace zdx {

os::ModuleHandle PosixModules::GetModuleHandleW(const wchar_t* /*name*/) { return nullptr; }

void* PosixModules::GetProcAddress(os::ModuleHandle /*module*/, const char* /*name*/) {
  return nullptr;
}

os::ModuleHandle LoadModule(const wchar_t* /*name*/) { return nullptr; }

bool UnloadModule(const wchar_t* /*name*/) { return false; }

}  // namespace zdx

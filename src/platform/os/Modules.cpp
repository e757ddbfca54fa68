#include "platform/os/Modules.h"

#include "platform/ProviderSlot.h"

namespace os {
namespace {

constinit platform::ProviderSlot<ModuleProvider> moduleSlot;

}  // namespace

ModuleProvider* InstallModuleProvider(ModuleProvider* provider) {
  return moduleSlot.Install(provider);
}

ModuleHandle GetModuleHandleW(const wchar_t* name) {
  return moduleSlot.Get().GetModuleHandleW(name);
}

void* GetProcAddress(ModuleHandle module, const char* name) {
  return moduleSlot.Get().GetProcAddress(module, name);
}

}  // namespace os

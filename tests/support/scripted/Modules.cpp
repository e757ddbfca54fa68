#include "support/scripted/Modules.h"

namespace scripted {

os::ModuleHandle Modules::GetModuleHandleW(const wchar_t* name) {
  const bool isHidden = calls_.Record("", "GetModuleHandleW", Arguments(name)).null;
  const auto module = exports.find(name);
  return isHidden || module == exports.end() ? nullptr : &*module;
}

void* Modules::GetProcAddress(os::ModuleHandle module, const char* name) {
  for (auto& entry : exports) {
    if (&entry != module) continue;
    const std::string words = Arguments(entry.first, std::string(name));
    const bool isHidden = calls_.Record("", "GetProcAddress", words).null;
    const auto address = entry.second.find(name);
    return isHidden || address == entry.second.end() ? nullptr : address->second;
  }
  calls_.Record("", "GetProcAddress", Arguments(std::string("no module"), std::string(name)));
  return nullptr;
}

}  // namespace scripted

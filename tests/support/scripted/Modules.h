// The loaded modules of a scripted world.
#pragma once

#include <map>
#include <string>

#include "platform/os/Modules.h"
#include "support/scripted/CallLog.h"

namespace scripted {

// A script makes each call give null.
class Modules : public os::ModuleProvider {
 public:
  explicit Modules(CallLog& calls) : calls_(calls) {}

  // What each loaded module exports, by the module's name; any other module isn't loaded.  A test
  // keeps it as it is while the engine holds a module's handle.
  std::map<std::wstring, std::map<std::string, void*>> exports;

  os::ModuleHandle GetModuleHandleW(const wchar_t* name) override;
  // The module is told by its name.
  void* GetProcAddress(os::ModuleHandle module, const char* name) override;

 private:
  CallLog& calls_;
};

}  // namespace scripted

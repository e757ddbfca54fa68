#include "backends/windows/WindowsModules.h"

#include <windows.h>

#include <map>
#include <string>

#include "backends/System.h"

namespace zdx {
namespace {

struct Loaded {
  HMODULE module = nullptr;
  // How often it was asked for and not given back.
  int count = 0;
};

using LoadedModules = std::map<std::wstring, Loaded>;

// By the names that they were loaded by.  Never destroyed: modules stay loaded to the very end.
LoadedModules& Modules() {
  static LoadedModules& modules = *new LoadedModules();
  return modules;
}

// What can't be loaded is told by a result; without this the system might ask the user about it.
class NoQuestions {
 public:
  NoQuestions() { ::SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &before_); }
  ~NoQuestions() { ::SetThreadErrorMode(before_, nullptr); }
  NoQuestions(const NoQuestions&) = delete;
  NoQuestions& operator=(const NoQuestions&) = delete;

 private:
  DWORD before_ = 0;
};

}  // namespace

os::ModuleHandle WindowsModules::GetModuleHandleW(const wchar_t* name) {
  const auto known = name == nullptr ? Modules().end() : Modules().find(name);
  return known == Modules().end() ? ::GetModuleHandleW(name) : known->second.module;
}

void* WindowsModules::GetProcAddress(os::ModuleHandle module, const char* name) {
  return reinterpret_cast<void*>(::GetProcAddress(static_cast<HMODULE>(module), name));
}

os::ModuleHandle LoadModule(const wchar_t* name) {
  if (name == nullptr || name[0] == L'\0') return nullptr;
  const auto known = Modules().find(name);
  if (known != Modules().end()) {
    ++known->second.count;
    return known->second.module;
  }
  const NoQuestions quiet;
  const HMODULE module = ::LoadLibraryW(name);
  if (module != nullptr) Modules()[name] = {module, 1};
  return module;
}

bool UnloadModule(const wchar_t* name) {
  const auto known = name == nullptr ? Modules().end() : Modules().find(name);
  if (known == Modules().end()) return false;
  if (--known->second.count == 0) {
    ::FreeLibrary(known->second.module);
    Modules().erase(known);
  }
  return true;
}

}  // namespace zdx

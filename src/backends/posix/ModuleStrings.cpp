#include "backends/posix/ModuleStrings.h"

#include <map>

#include "backends/System.h"

namespace zdx {
namespace {

using Finders = std::map<os::ModuleHandle, ModuleTextFinder>;

// Never destroyed: texts are read and modules given back by objects that are destroyed at exit.
Finders& RegisteredFinders() {
  static Finders& finders = *new Finders();
  return finders;
}

}  // namespace

void RegisterModuleStrings(os::ModuleHandle module, ModuleTextFinder find) {
  RegisteredFinders()[module] = find;
}

bool HasModuleStrings(os::ModuleHandle module) { return RegisteredFinders().contains(module); }

std::wstring LoadModuleString(os::ModuleHandle module, unsigned int id) {
  const auto row = RegisteredFinders().find(module);
  const wchar_t* const text = row == RegisteredFinders().end() ? nullptr : row->second(id);
  return text == nullptr ? std::wstring() : std::wstring(text);
}

}  // namespace zdx

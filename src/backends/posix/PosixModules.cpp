#include "backends/posix/PosixModules.h"

#include <dlfcn.h>
#include <link.h>
#include <sys/stat.h>

#include <map>
#include <string>
#include <vector>

#include "ZDXEngine/Utf8.h"
#include "backends/System.h"
#include "backends/posix/FileSearch.h"
#include "backends/posix/PathText.h"
#include "backends/posix/RealNames.h"

namespace zdx {
namespace {

struct Loaded {
  void* handle = nullptr;
  // How often it was asked for and not given back.
  int count = 0;
};

using LoadedModules = std::map<std::wstring, Loaded>;

// By the names that they were loaded by.  Never destroyed: modules stay loaded to the very end.
LoadedModules& Modules() {
  static LoadedModules& modules = *new LoadedModules();
  return modules;
}

// The name of a file, by which the loader doesn't search.  Empty for what isn't a file: to open a
// pipe would wait for ever.
std::string LoadableName(const std::wstring& path) {
  const std::optional<std::string> name = RealName(path);
  const std::optional<struct stat> status = name ? StatusOf(*name) : std::nullopt;
  if (!status || !S_ISREG(status->st_mode)) return std::string();
  return ZDXEngine::BytesFromWide(FromRoot(ZDXEngine::WideFromUtf8(*name)));
}

std::vector<std::string> Candidates(const std::wstring& name) {
  if (IsAbsolute(name) || LeafAt(name) != 0) return {LoadableName(name)};
  const std::wstring executable = ExecutablePath();
  return {LoadableName(executable.substr(0, LeafAt(executable)) + name), LoadableName(name),
          ZDXEngine::BytesFromWide(name)};
}

void* Open(const std::wstring& name) {
  for (const std::string& candidate : Candidates(name)) {
    if (candidate.empty()) continue;
    if (void* const handle = dlopen(candidate.c_str(), RTLD_NOW | RTLD_LOCAL)) return handle;
  }
  return nullptr;
}

// Whether `address` lies in the module itself rather than in a library that it needs.
bool IsOwn(void* module, void* address) {
  link_map* own = nullptr;
  link_map* found = nullptr;
  Dl_info ignored = {};
  return dlinfo(module, RTLD_DI_LINKMAP, &own) == 0 &&
         dladdr1(address, &ignored, reinterpret_cast<void**>(&found), RTLD_DL_LINKMAP) != 0 &&
         own == found;
}

}  // namespace

os::ModuleHandle PosixModules::GetModuleHandleW(const wchar_t* name) {
  const auto module = name == nullptr ? Modules().end() : Modules().find(name);
  return module == Modules().end() ? nullptr : module->second.handle;
}

void* PosixModules::GetProcAddress(os::ModuleHandle module, const char* name) {
  if (module == nullptr || name == nullptr) return nullptr;
  void* const address = dlsym(module, name);
  return address != nullptr && IsOwn(module, address) ? address : nullptr;
}

os::ModuleHandle LoadModule(const wchar_t* name) {
  if (name == nullptr || name[0] == L'\0') return nullptr;
  const auto known = Modules().find(name);
  if (known != Modules().end()) {
    ++known->second.count;
    return known->second.handle;
  }
  void* const handle = Open(name);
  if (handle != nullptr) Modules()[name] = {handle, 1};
  return handle;
}

bool UnloadModule(const wchar_t* name) {
  const auto known = name == nullptr ? Modules().end() : Modules().find(name);
  if (known == Modules().end()) return false;
  if (--known->second.count == 0) {
    dlclose(known->second.handle);
    Modules().erase(known);
  }
  return true;
}

}  // namespace zdx

#include "architecture/Module.h"

#include <dlfcn.h>

#include <stdexcept>

namespace architecture {

Module::Module(const std::filesystem::path& path)
    : handle_(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (handle_ == nullptr) throw std::runtime_error(dlerror());
}

Module::~Module() { dlclose(handle_); }

Module::Symbol Module::FindSymbol(const char* name) const {
  return reinterpret_cast<Symbol>(dlsym(handle_, name));
}

}  // namespace architecture

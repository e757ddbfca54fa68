#include "architecture/Module.h"

#include <windows.h>

#include <stdexcept>

namespace architecture {

Module::Module(const std::filesystem::path& path) : handle_(LoadLibraryW(path.c_str())) {
  if (handle_ == nullptr) throw std::runtime_error("can't load " + path.string());
}

Module::~Module() { FreeLibrary(static_cast<HMODULE>(handle_)); }

Module::Symbol Module::FindSymbol(const char* name) const {
  return reinterpret_cast<Symbol>(GetProcAddress(static_cast<HMODULE>(handle_), name));
}

}  // namespace architecture

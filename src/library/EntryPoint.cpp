#include "library/EntryPoint.h"

#include "resources/ResourceModule.h"

namespace ZDXEngine {

bool OnLoaderNotification(os::ModuleHandle module, std::uint32_t /*reason*/) {
  SetModuleHandle(module);
  return true;
}

}  // namespace ZDXEngine

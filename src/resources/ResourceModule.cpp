#include "resources/ResourceModule.h"

namespace ZDXEngine {
namespace {

constinit os::ModuleHandle moduleHandle = nullptr;

struct Holder {
  ~Holder() {
    if (module != nullptr) os::FreeLibrary(module);
  }
  os::ModuleHandle module = nullptr;
};

}  // namespace

void SetModuleHandle(os::ModuleHandle module) { moduleHandle = module; }

os::ModuleHandle ResourceModule() {
  static Holder resourceModule;
  if (resourceModule.module == nullptr && moduleHandle != nullptr) {
    resourceModule.module = moduleHandle;
  }
  return resourceModule.module;
}

}  // namespace ZDXEngine

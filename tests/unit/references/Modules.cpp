#include "unit/references/Modules.h"

namespace references {
namespace {

Module module;

}  // namespace

Module& FreshModule() {
  module = Module();
  return module;
}

std::vector<ZDXEngine::VerticalRecord> AskedModule(const ZnDbDatabase* database) {
  return module.onGet ? module.onGet(database) : std::vector<ZDXEngine::VerticalRecord>();
}

std::vector<std::wstring> ToldModule(ZnDbDatabase* database,
                                     ZDXEngine::VerticalRecord& destinations) {
  return module.onUpdate ? module.onUpdate(database, destinations) : std::vector<std::wstring>();
}

void Export(scripted::World& world, const std::wstring& name) {
  world.modules.exports[name] = {
      {"GetDependencies", reinterpret_cast<void*>(&AskedModule)},
      {"UpdateDependencies", reinterpret_cast<void*>(&ToldModule)},
  };
}

}  // namespace references

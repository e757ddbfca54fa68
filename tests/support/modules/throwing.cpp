// A module that fails at everything.
#include <stdexcept>
#include <vector>

#include "ZDXEngine/FileReferenceService.h"
#include "ZDXEngine/VerticalModule.h"

ZDX_MODULE_EXPORT std::vector<ZDXEngine::VerticalRecord> GetDependencies(
    const ZnDbDatabase* /*database*/) {
  throw std::runtime_error("no references");
}

ZDX_MODULE_EXPORT std::vector<std::wstring> UpdateDependencies(
    ZnDbDatabase* /*database*/, ZDXEngine::VerticalRecord& /*destinations*/) {
  throw std::runtime_error("no update");
}

// A module that can't be told where its files went.
#include <vector>

#include "ZDXEngine/FileReferenceService.h"
#include "ZDXEngine/VerticalModule.h"

ZDX_MODULE_EXPORT std::vector<ZDXEngine::VerticalRecord> GetDependencies(
    const ZnDbDatabase* /*database*/) {
  return {{{ZDXEngine::VerticalKey::kRefId, L"lacking-1"},
           {ZDXEngine::VerticalKey::kFilePath, L"never told"}}};
}

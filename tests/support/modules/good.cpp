// A module that answers both questions: two references, and it writes down what it is told.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "ZDXEngine/FileReferenceService.h"
#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/VerticalModule.h"

namespace key = ZDXEngine::VerticalKey;

ZDX_MODULE_EXPORT std::vector<ZDXEngine::VerticalRecord> GetDependencies(
    const ZnDbDatabase* database) {
  if (database == nullptr) return {};
  return {{{key::kRefId, L"good-1"},
           {key::kFilePath, L"points.txt"},
           {key::kAbsolutePath, L"/survey/points.txt"},
           {key::kIsUpdateSupported, L"true"},
           {L"Comment", L"nobody reads this"}},
          {{key::kRefId, L"good-2"},
           {key::kFilePath, L"curves.txt"},
           {key::kIsUpdateSupported, L"false"}}};
}

// Makes a file at each destination that isn't empty, with the id of its reference.
ZDX_MODULE_EXPORT std::vector<std::wstring> UpdateDependencies(
    ZnDbDatabase* /*database*/, ZDXEngine::VerticalRecord& destinations) {
  for (const auto& [id, destination] : destinations) {
    if (destination.empty()) continue;
    std::ofstream(std::filesystem::path(destination)) << ZDXEngine::Utf8FromWide(id);
  }
  return {L"this isn't looked at"};
}

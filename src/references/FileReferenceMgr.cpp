#include "ZDXEngine/FileReferenceMgr.h"

#include <utility>

namespace ZDXEngine {

FileReferenceMgr::FileReferenceMgr() = default;
FileReferenceMgr::FileReferenceMgr(const FileReferenceMgr& other) = default;
FileReferenceMgr& FileReferenceMgr::operator=(const FileReferenceMgr& other) = default;

FileReferenceMgr::~FileReferenceMgr() {
  for (const auto& [key, service] : ExternalVerticalReferenceServices) delete service;
}

FileReferenceMgr& FileReferenceMgr::Instance() {
  static FileReferenceMgr instance;
  return instance;
}

bool FileReferenceMgr::SetUseNewDwgUpdateApproachFeatureFlag(bool value) {
  return std::exchange(UseNewDwgUpdateApproach, value);
}

bool FileReferenceMgr::GetUseNewDwgUpdateApproachFeatureFlag() { return UseNewDwgUpdateApproach; }

}  // namespace ZDXEngine

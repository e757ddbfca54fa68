#include "ZDXEngine/FileReferenceMgr.h"

namespace ZDXEngine {

FileReferenceMgr::FileReferenceMgr() = default;
FileReferenceMgr::~FileReferenceMgr() = default;

FileReferenceMgr& FileReferenceMgr::Instance() {
  static FileReferenceMgr instance;
  return instance;
}

}  // namespace ZDXEngine

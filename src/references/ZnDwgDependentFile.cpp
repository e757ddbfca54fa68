#include <vector>

#include "ZDXEngine/DwgDependentFile.h"
#include "ZDXEngine/FileReferenceMgr.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "references/LibraryFileTypes.h"

namespace ZDXEngine {
namespace {

// Deletes `top` and every node below it, each after those that hang under it.  A node's list goes
// with the node, so a copy of it is worked through; without recursion, since trees may be deep.
void DeleteTree(ZnDwgDepends::File* top) {
  struct Level {
    ZnDwgDepends::File* file;
    std::vector<ZnDwgDepends::File*> dependents;
    std::size_t next = 0;
  };
  std::vector<Level> levels;
  levels.push_back({top, top->getDirectDependents()});
  while (!levels.empty()) {
    Level& level = levels.back();
    if (level.next == level.dependents.size()) {
      delete level.file;
      levels.pop_back();
      continue;
    }
    ZnDwgDepends::File* const dependent = level.dependents[level.next++];
    if (dependent != nullptr) levels.push_back({dependent, dependent->getDirectDependents()});
  }
}

}  // namespace

ZnDwgDependentFile::ZnDwgDependentFile(ZnDwgDepends::DwgFile* dwgFile, const std::wstring& refId,
                                       bool isRootFile) {
  SetDwgFile(dwgFile);
  RefId = refId;
  IsRootFile = isRootFile;
  IsOverlay = false;
}

ZnDwgDependentFile::ZnDwgDependentFile(const ZnDwgDependentFile& other) = default;
ZnDwgDependentFile::ZnDwgDependentFile(ZnDwgDependentFile&& other) noexcept = default;
ZnDwgDependentFile& ZnDwgDependentFile::operator=(const ZnDwgDependentFile& other) = default;
ZnDwgDependentFile& ZnDwgDependentFile::operator=(ZnDwgDependentFile&& other) noexcept = default;
ZnDwgDependentFile::~ZnDwgDependentFile() = default;

ZnDwgDepends::DwgFile* ZnDwgDependentFile::GetDwgFile() { return DwgFile; }

void ZnDwgDependentFile::SetDwgFile(ZnDwgDepends::DwgFile* dwgFile) {
  SourcePath = dwgFile->filename();
  DwgFile = dwgFile;
  SupportRePath = CanBeRepathed(dwgFile->fileType());
  FileType = ClassOfFile(dwgFile->fileType());
}

void ZnDwgDependentFile::Dispose() {
  if (!FileReferenceMgr::Instance().GetUseNewDwgUpdateApproachFeatureFlag()) {
    delete DwgFile;
    DwgFile = nullptr;
    return;
  }
  // The whole tree is the root's.  Its pointer stays as it is: a second call is the caller's fault.
  if (IsRootFile && DwgFile != nullptr) DeleteTree(DwgFile);
}

}  // namespace ZDXEngine

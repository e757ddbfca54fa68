#include "ZDXEngine/FilePropertyMgr.h"

#include "drawing/DrawingFile.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "properties/ReadSteps.h"
#include "properties/read/DrawingFlavour.h"

namespace ZDXEngine {

FilePropertyMgr& FilePropertyMgr::Instance() {
  static FilePropertyMgr instance;
  return instance;
}

FilePropertyMgr& FilePropertyMgr::operator=(const FilePropertyMgr&) { return *this; }

DwgFileType FilePropertyMgr::GetFileType(const std::wstring& path) {
  ZnDbDatabase database(false, true);
  OpenDrawing(path, &database, true);
  return GetDrawingFlavour(&database);
}

std::vector<_PropData> FilePropertyMgr::GetProperties(const std::wstring& path,
                                                      std::vector<BlockFilterParam>& filters,
                                                      FilePropertiesSet selection) {
  ZnDbDatabase database(false, true);
  OpenDrawing(path, &database, true);
  std::vector<_PropData> properties;
  const ReadRequest request = {path, &database, filters};
  for (const ReadStep& step : ReadSteps()) {
    if (selection == AllProperties || (selection & step.bit) != 0) {
      step.collect(properties, request);
    }
  }
  return properties;
}

}  // namespace ZDXEngine

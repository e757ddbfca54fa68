#include "ZDXEngine/FileReferenceMgr.h"
#include "drawing/DrawingFile.h"
#include "platform/modeldoc/ZnModelDocObjUtil.h"
#include "platform/zndb/ZnString.h"

namespace ZDXEngine {

bool FileReferenceMgr::UnpackPartonicDrawingFile(const std::wstring& path, std::wstring& unpacked) {
  ZnDbDatabase database(false, true);
  OpenDrawing(path, &database, true);
  ZnString file;
  if (ZnModelDocObjUtil::unpackPartonicDrawingFile(&database, file) != Zent::kOk) return false;
  unpacked = static_cast<const wchar_t*>(file);
  return true;
}

bool FileReferenceMgr::SetPartonicRedirectionsInfo(const std::wstring& path,
                                                   const std::wstring& redirectionsInfo) {
  ZnDbDatabase database(false, true);
  OpenDrawing(path, &database, false);
  const ZnString redirections(redirectionsInfo.c_str());
  if (ZnModelDocObjUtil::setRedirectionsInfo(&database, redirections) != Zent::kOk) return false;
  return SaveDrawing(&database, path) == Zent::kOk;
}

std::wstring FileReferenceMgr::GetTandemixPartonicRefIdPattern() {
  return L"TDX_PRT:IDW:(?<PartonicRefId>[\\w\\W]+)";
}

}  // namespace ZDXEngine

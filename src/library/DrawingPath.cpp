#include "ZDXEngine/VerticalModule.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

std::wstring DrawingPath(const ZnDbDatabase* database) {
  return database == nullptr ? std::wstring() : database->originalFileName();
}

}  // namespace ZDXEngine

#include "properties/appinfo/SourceFile.h"

namespace ZDXEngine {

os::FileHandle OpenSourceFile(const std::wstring& path) {
  return os::CreateFileW(path.c_str(), os::kGenericRead, os::kShareRead | os::kShareWrite, nullptr,
                         os::kOpenExisting, os::kAttributeNormal, nullptr);
}

}  // namespace ZDXEngine

#include "ZDXEngine/FileReferenceService.h"

#include "host/DynamicLinker.h"
#include "platform/os/Modules.h"

namespace ZDXEngine {

FileReferenceService* FileReferenceService::CreateInstance(const std::wstring& version,
                                                           const wchar_t* moduleName) {
  if (!DynamicLinker()->loadModule(moduleName, false, false)) return nullptr;
  const os::ModuleHandle module = os::GetModuleHandleW(moduleName);
  if (module == nullptr) return nullptr;
  void* const getDependencies = os::GetProcAddress(module, "GetDependencies");
  void* const updateDependencies = os::GetProcAddress(module, "UpdateDependencies");
  if (getDependencies == nullptr || updateDependencies == nullptr) return nullptr;
  return new FileReferenceService(version, reinterpret_cast<GetDependenciesFunc>(getDependencies),
                                  reinterpret_cast<UpdateDependenciesFunc>(updateDependencies));
}

FileReferenceService::FileReferenceService(const std::wstring& version,
                                           GetDependenciesFunc getDependencies,
                                           UpdateDependenciesFunc updateDependencies)
    : GetDependenciesFuncPtr(getDependencies),
      UpdateDependenciesFuncPtr(updateDependencies),
      CurrentVersion(version) {}

FileReferenceService::FileReferenceService(const FileReferenceService& other) = default;
FileReferenceService& FileReferenceService::operator=(const FileReferenceService& other) = default;

FileReferenceService::~FileReferenceService() {
  GetDependenciesFuncPtr = nullptr;
  UpdateDependenciesFuncPtr = nullptr;
  CurrentVersion.clear();
}

std::wstring& FileReferenceService::GetCurrentVersion() { return CurrentVersion; }

GetDependenciesFunc& FileReferenceService::Get_GetDependenciesFuncPtr() {
  return GetDependenciesFuncPtr;
}

UpdateDependenciesFunc& FileReferenceService::Get_UpdateDependenciesFuncPtr() {
  return UpdateDependenciesFuncPtr;
}

}  // namespace ZDXEngine

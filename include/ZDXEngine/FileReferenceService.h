// A loadable module that knows references which only an application of its own understands.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "ZDXEngine/Export.h"

class ZnDbDatabase;

namespace ZDXEngine {

// What a module exports, as plain functions named "GetDependencies" and "UpdateDependencies"; it
// must be built with the same C++ runtime as the library.  VerticalModule.h helps to write one.
using VerticalRecord = std::map<std::wstring, std::wstring>;
using GetDependenciesFunc = std::vector<VerticalRecord> (*)(const ZnDbDatabase* database);
using UpdateDependenciesFunc = std::vector<std::wstring> (*)(ZnDbDatabase* database,
                                                             VerticalRecord& destinations);

// One module that was loaded, which stays loaded.
class ZDXENGINE_API FileReferenceService {
 public:
  // Loads the module `moduleName`; null if it can't be loaded or lacks one of the two functions.
  // The caller owns the service.
  static FileReferenceService* CreateInstance(const std::wstring& version,
                                              const wchar_t* moduleName);

  FileReferenceService(const FileReferenceService& other);
  FileReferenceService& operator=(const FileReferenceService& other);
  ~FileReferenceService();

  // What the client calls the service's version.
  std::wstring& GetCurrentVersion();
  GetDependenciesFunc& Get_GetDependenciesFuncPtr();
  UpdateDependenciesFunc& Get_UpdateDependenciesFuncPtr();

 private:
  FileReferenceService(const std::wstring& version, GetDependenciesFunc getDependencies,
                       UpdateDependenciesFunc updateDependencies);

  GetDependenciesFunc GetDependenciesFuncPtr;
  UpdateDependenciesFunc UpdateDependenciesFuncPtr;
  std::wstring CurrentVersion;
};

}  // namespace ZDXEngine

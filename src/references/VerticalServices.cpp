#include <exception>
#include <memory>

#include "ZDXEngine/FileReferenceMgr.h"
#include "ZDXEngine/VerticalModule.h"
#include "errors/Throw.h"
#include "references/LibraryFileTypes.h"

namespace ZDXEngine {
namespace {

// What the sentences of a module's failure are given for a path.
constexpr const wchar_t* kModulePath = L"FileReferenceMgr";
constexpr int kListing = 0;
constexpr int kUpdating = 1;

// Null if the module left the value out.
const std::wstring* Find(const VerticalRecord& values, const wchar_t* key) {
  const auto found = values.find(key);
  return found == values.end() ? nullptr : &found->second;
}

std::wstring ValueOf(const VerticalRecord& values, const wchar_t* key) {
  const std::wstring* const value = Find(values, key);
  return value == nullptr ? std::wstring() : *value;
}

std::unique_ptr<DwgDependentFile> MakeRecord(const VerticalRecord& values) {
  auto record =
      std::make_unique<DwgDependentFile>(ValueOf(values, VerticalKey::kFilePath), L"",
                                         ValueOf(values, VerticalKey::kRefId), kOtherFile, false);
  // Modules rely on the reversed sense.
  const std::wstring* const isUpdateSupported = Find(values, VerticalKey::kIsUpdateSupported);
  if (isUpdateSupported != nullptr) record->SetSupportRePath(*isUpdateSupported == L"false");
  const std::wstring* const absolutePath = Find(values, VerticalKey::kAbsolutePath);
  if (absolutePath != nullptr) record->SetAbsolutePath(*absolutePath);
  return record;
}

// What the module says is dropped.
std::vector<VerticalRecord> AskModule(const ZnDbDatabase* database, GetDependenciesFunc function) {
  try {
    return function(database);
  } catch (const std::exception&) {
    ThrowForVerticalFailure(kModulePath, kListing);
  }
}

void TellModule(ZnDbDatabase* database, VerticalRecord& destinations,
                UpdateDependenciesFunc function) {
  try {
    function(database, destinations);
  } catch (const std::exception&) {
    ThrowForVerticalFailure(kModulePath, kUpdating);
  }
}

}  // namespace

std::vector<DwgDependentFile*> FileReferenceMgr::GetDependencies(
    const std::wstring& path, const DependencySettings& settings, bool& statusFlag,
    DwgDependentFile*& root, DwgFileType& drawingType, bool directDependentsOnly,
    const ServiceModules& services) {
  ZnDbDatabase* database = nullptr;
  std::vector<DwgDependentFile*> records = GetZnDependencies(
      database, path, settings, statusFlag, root, drawingType, directDependentsOnly);
  for (const auto& [key, service] : GetExternalVerticalReferenceServices(services)) {
    const std::vector<DwgDependentFile*> more =
        GetVerticalDependencies(database, service->Get_GetDependenciesFuncPtr());
    records.insert(records.end(), more.begin(), more.end());
  }
  return records;
}

// Equal counts are taken to mean that all is loaded.
FileReferenceMgr::Services& FileReferenceMgr::GetExternalVerticalReferenceServices(
    const ServiceModules& requested) {
  Services& held = ExternalVerticalReferenceServices;
  if (held.size() == requested.size()) return held;
  for (const auto& key : requested) {
    if (held.contains(key)) continue;
    const auto& [version, module] = key;
    std::unique_ptr<FileReferenceService> service(
        FileReferenceService::CreateInstance(version, module.c_str()));
    if (service == nullptr) continue;
    held.emplace(key, service.get());
    static_cast<void>(service.release());
  }
  return held;
}

std::vector<DwgDependentFile*> FileReferenceMgr::GetVerticalDependencies(
    const ZnDbDatabase* database, const GetDependenciesFunc& function) {
  std::vector<DwgDependentFile*> records;
  if (database == nullptr || function == nullptr) return records;
  for (const VerticalRecord& values : AskModule(database, function)) {
    records.push_back(MakeRecord(values).release());
  }
  return records;
}

std::vector<ErrorInfo> FileReferenceMgr::UpdateVerticalDependencies(
    ZnDbDatabase* database, std::vector<DwgDependentFile*>& records,
    const UpdateDependenciesFunc& function) {
  if (database == nullptr || function == nullptr) return {};
  // Never freed: a module may keep hold of it.
  auto* const destinations = new VerticalRecord;
  for (DwgDependentFile* const record : records) {
    destinations->emplace(record->GetRefId(), record->GetDestinationPath());
  }
  TellModule(database, *destinations, function);
  return {};
}

}  // namespace ZDXEngine

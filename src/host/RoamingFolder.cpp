#include "host/RoamingFolder.h"

#include <cstddef>

#include "platform/os/Paths.h"

namespace ZDXEngine {
namespace {

constexpr const wchar_t* kRootFolderSegments[] = {L"Norvane", L"Sync", L"Support", nullptr};
// The answer stops above the deepest folder, which is made and tested all the same.
constexpr int kSegmentsOfAnswer = 2;

// What a split path's parts are held in, in characters.
constexpr std::size_t kDriveSize = 3;
constexpr std::size_t kPartSize = 256;

wchar_t rootFolder[os::kPathSize] = {};

// Makes the folders below `roaming`; true if the deepest is there then.
bool MakeSegments(const wchar_t* roaming) {
  wchar_t path[os::kPathSize] = {};
  os::wcscpy_s(path, os::kPathSize, roaming);
  for (const wchar_t* const* segment = kRootFolderSegments; *segment != nullptr; ++segment) {
    os::PathAppendW(path, *segment);
    if (os::PathFileExistsW(path) == 0) os::CreateDirectoryW(path, nullptr);
  }
  return os::PathFileExistsW(path) != 0;
}

bool FillFromRoaming() {
  wchar_t roaming[os::kPathSize] = {};
  if (os::SHGetFolderPathW(nullptr, os::kRoamingAppDataCreated, nullptr, 0, roaming) < 0 ||
      !MakeSegments(roaming)) {
    return false;
  }
  wchar_t path[os::kPathSize] = {};
  os::wcscpy_s(path, os::kPathSize, roaming);
  for (int i = 0; i < kSegmentsOfAnswer; ++i) os::PathAppendW(path, kRootFolderSegments[i]);
  os::wcscpy_s(rootFolder, os::kPathSize, path);
  return true;
}

// The directory begins with a separator of its own, so the answer has two after the drive: callers
// know it so.
void FillFromExecutable() {
  os::GetModuleFileNameW(nullptr, rootFolder, os::kPathSize);
  wchar_t drive[kDriveSize] = {};
  wchar_t directory[kPartSize] = {};
  wchar_t name[kPartSize] = {};
  wchar_t extension[kPartSize] = {};
  os::_wsplitpath_s(rootFolder, drive, kDriveSize, directory, kPartSize, name, kPartSize, extension,
                    kPartSize);
  os::wcscpy_s(rootFolder, os::kPathSize, drive);
  os::wcscat_s(rootFolder, os::kPathSize, L"\\");
  os::wcscat_s(rootFolder, os::kPathSize, directory);
}

}  // namespace

const wchar_t* RoamingRootFolder() {
  if (rootFolder[0] == L'\0' && !FillFromRoaming()) FillFromExecutable();
  return rootFolder;
}

}  // namespace ZDXEngine

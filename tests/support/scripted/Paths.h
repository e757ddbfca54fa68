// The paths, folders and searches of a scripted world.  Nothing of it is on a disk.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "platform/os/Paths.h"
#include "support/scripted/CallLog.h"

namespace scripted {

// Paths are written as on Windows, and compared letter by letter.  A script with a status makes a
// call fail, with that status where it answers one.
class Paths : public os::PathProvider {
 public:
  explicit Paths(CallLog& calls) : calls_(calls) {}

  // What there is; CreateDirectoryW adds to it.
  std::set<std::wstring> existing;
  // The user's roaming folder, and the process's executable.
  std::wstring roamingFolder = L"C:\\Users\\me\\Roaming";
  std::wstring executable = L"C:\\Program\\zdx.exe";
  // What a search along the system's own path finds, and one in the folders of each text.
  std::optional<std::wstring> onOwnPath;
  std::map<std::wstring, std::wstring> inFolders;

  HRESULT SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags,
                           wchar_t* path) override;
  int PathAppendW(wchar_t* path, const wchar_t* name) override;
  int PathFileExistsW(const wchar_t* path) override;
  int PathIsRelativeW(const wchar_t* path) override;
  // Says so if the buffer it is given isn't zeros throughout.
  wchar_t* PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) override;
  int PathRemoveFileSpecW(wchar_t* path) override;
  // A script's status is the length that it tells.
  std::uint32_t SearchPathW(const wchar_t* folders, const wchar_t* name, const wchar_t* extension,
                            std::uint32_t size, wchar_t* path, wchar_t** leaf) override;
  int CreateDirectoryW(const wchar_t* path, void* security) override;
  std::uint32_t GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size) override;
  os::Errno _wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize,
                          wchar_t* directory, std::size_t directorySize, wchar_t* name,
                          std::size_t nameSize, wchar_t* extension,
                          std::size_t extensionSize) override;
  os::Errno wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source) override;
  os::Errno wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source) override;
  os::Errno wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source,
                      std::size_t count) override;

 private:
  CallLog& calls_;
};

}  // namespace scripted

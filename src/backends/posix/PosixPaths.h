// Paths, folders and searches on POSIX systems.
#pragma once

#include "platform/os/Paths.h"

namespace zdx {

class PosixPaths : public os::PathProvider {
 public:
  HRESULT SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags,
                           wchar_t* path) override;
  int PathAppendW(wchar_t* path, const wchar_t* name) override;
  int PathFileExistsW(const wchar_t* path) override;
  int PathIsRelativeW(const wchar_t* path) override;
  wchar_t* PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) override;
  int PathRemoveFileSpecW(wchar_t* path) override;
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
};

}  // namespace zdx

#include "platform/os/Paths.h"

#include "platform/ProviderSlot.h"

namespace os {
namespace {

constinit platform::ProviderSlot<PathProvider> pathSlot;

}  // namespace

PathProvider* InstallPathProvider(PathProvider* provider) { return pathSlot.Install(provider); }

HRESULT SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags, wchar_t* path) {
  return pathSlot.Get().SHGetFolderPathW(owner, which, token, flags, path);
}

int PathAppendW(wchar_t* path, const wchar_t* name) {
  return pathSlot.Get().PathAppendW(path, name);
}

int PathFileExistsW(const wchar_t* path) { return pathSlot.Get().PathFileExistsW(path); }

int PathIsRelativeW(const wchar_t* path) { return pathSlot.Get().PathIsRelativeW(path); }

wchar_t* PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) {
  return pathSlot.Get().PathCombineW(path, folder, file);
}

int PathRemoveFileSpecW(wchar_t* path) { return pathSlot.Get().PathRemoveFileSpecW(path); }

std::uint32_t SearchPathW(const wchar_t* folders, const wchar_t* name, const wchar_t* extension,
                          std::uint32_t size, wchar_t* path, wchar_t** leaf) {
  return pathSlot.Get().SearchPathW(folders, name, extension, size, path, leaf);
}

int CreateDirectoryW(const wchar_t* path, void* security) {
  return pathSlot.Get().CreateDirectoryW(path, security);
}

std::uint32_t GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size) {
  return pathSlot.Get().GetModuleFileNameW(module, path, size);
}

Errno _wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize, wchar_t* directory,
                    std::size_t directorySize, wchar_t* name, std::size_t nameSize,
                    wchar_t* extension, std::size_t extensionSize) {
  return pathSlot.Get()._wsplitpath_s(path, drive, driveSize, directory, directorySize, name,
                                      nameSize, extension, extensionSize);
}

Errno wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  return pathSlot.Get().wcscpy_s(target, size, source);
}

Errno wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  return pathSlot.Get().wcscat_s(target, size, source);
}

Errno wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source, std::size_t count) {
  return pathSlot.Get().wcsncpy_s(target, size, source, count);
}

}  // namespace os

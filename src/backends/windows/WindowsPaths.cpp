#include "backends/windows/WindowsPaths.h"

#include <windows.h>
// After windows.h.
#include <shlobj.h>
#include <shlwapi.h>

#include <cstdlib>
#include <cwchar>
#include <string>

namespace zdx {
namespace {

static_assert(os::kPathSize == MAX_PATH && os::kBufferTooSmall == ERANGE &&
              os::kRoamingAppDataCreated == (CSIDL_APPDATA | CSIDL_FLAG_CREATE));

// The bounded copies of the C library end the process where a text doesn't fit, so that is found
// out before.  Empties the target and tells why nothing can be copied, or gives 0.
os::Errno Refusal(wchar_t* target, std::size_t size, const wchar_t* source, std::size_t length) {
  if (target == nullptr || size == 0) return EINVAL;
  if (source != nullptr && length < size) return 0;
  target[0] = L'\0';
  return source == nullptr ? EINVAL : ERANGE;
}

std::size_t LengthOf(const wchar_t* text) { return text == nullptr ? 0 : std::wcslen(text); }

}  // namespace

HRESULT WindowsPaths::SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags,
                                       wchar_t* path) {
  return ::SHGetFolderPathW(static_cast<HWND>(owner), which, token, flags, path);
}

int WindowsPaths::PathAppendW(wchar_t* path, const wchar_t* name) {
  return ::PathAppendW(path, name);
}

int WindowsPaths::PathFileExistsW(const wchar_t* path) {
  return LengthOf(path) < os::kPathSize && ::PathFileExistsW(path) ? 1 : 0;
}

int WindowsPaths::PathIsRelativeW(const wchar_t* path) { return ::PathIsRelativeW(path); }

wchar_t* WindowsPaths::PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) {
  return ::PathCombineW(path, folder, file);
}

int WindowsPaths::PathRemoveFileSpecW(wchar_t* path) { return ::PathRemoveFileSpecW(path); }

std::uint32_t WindowsPaths::SearchPathW(const wchar_t* folders, const wchar_t* name,
                                        const wchar_t* extension, std::uint32_t size, wchar_t* path,
                                        wchar_t** leaf) {
  return ::SearchPathW(folders, name, extension, size, path, leaf);
}

int WindowsPaths::CreateDirectoryW(const wchar_t* path, void* security) {
  return ::CreateDirectoryW(path, static_cast<SECURITY_ATTRIBUTES*>(security));
}

std::uint32_t WindowsPaths::GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size) {
  const DWORD length = ::GetModuleFileNameW(static_cast<HMODULE>(module), path, size);
  // Not every system ends a path that it cuts off.
  if (size != 0 && length >= size) path[size - 1] = L'\0';
  return length;
}

os::Errno WindowsPaths::_wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize,
                                      wchar_t* directory, std::size_t directorySize, wchar_t* name,
                                      std::size_t nameSize, wchar_t* extension,
                                      std::size_t extensionSize) {
  // No part is longer than the whole.
  const std::size_t room = LengthOf(path) + 1;
  std::wstring parts[] = {std::wstring(room, L'\0'), std::wstring(room, L'\0'),
                          std::wstring(room, L'\0'), std::wstring(room, L'\0')};
  const struct {
    wchar_t* target;
    std::size_t size;
  } kTargets[] = {
      {drive, driveSize}, {directory, directorySize}, {name, nameSize}, {extension, extensionSize}};
  os::Errno result = EINVAL;
  if (path != nullptr) {
    result = ::_wsplitpath_s(path, parts[0].data(), room, parts[1].data(), room, parts[2].data(),
                             room, parts[3].data(), room);
  }
  for (std::size_t i = 0; result == 0 && i < 4; ++i) {
    // A part that nobody asks for.
    if (kTargets[i].target == nullptr && kTargets[i].size == 0) continue;
    result = wcscpy_s(kTargets[i].target, kTargets[i].size, parts[i].c_str());
  }
  for (const auto& target : kTargets) {
    if (result != 0 && target.target != nullptr && target.size != 0) target.target[0] = L'\0';
  }
  return result;
}

os::Errno WindowsPaths::wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  const os::Errno refused = Refusal(target, size, source, LengthOf(source));
  return refused != 0 ? refused : ::wcscpy_s(target, size, source);
}

os::Errno WindowsPaths::wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  const std::size_t before = target == nullptr ? 0 : wcsnlen(target, size);
  // Without a terminator there is nothing to append to.
  const wchar_t* const added = before < size ? source : nullptr;
  const os::Errno refused = Refusal(target, size, added, before + LengthOf(added));
  return refused != 0 ? refused : ::wcscat_s(target, size, source);
}

os::Errno WindowsPaths::wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source,
                                  std::size_t count) {
  const std::size_t length = source == nullptr ? 0 : wcsnlen(source, count);
  const os::Errno refused = Refusal(target, size, source, length);
  return refused != 0 ? refused : ::wcsncpy_s(target, size, source, length);
}

}  // namespace zdx

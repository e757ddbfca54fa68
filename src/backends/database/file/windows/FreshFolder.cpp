#include "backends/database/file/FreshFolder.h"

#include <windows.h>

namespace zdx::file {

std::variant<std::wstring, WriteError> MakeFreshFolder() {
  constexpr int kMostFolders = 1000;
  wchar_t above[MAX_PATH + 1] = {};
  DWORD error = ERROR_PATH_NOT_FOUND;
  if (GetTempPathW(MAX_PATH + 1, above) != 0) {
    const std::wstring begin = std::wstring(above) + L"zdx-" +
                               std::to_wstring(GetCurrentProcessId()) + L"-" +
                               std::to_wstring(GetTickCount()) + L"-";
    error = ERROR_ALREADY_EXISTS;
    for (int i = 0; i < kMostFolders && error == ERROR_ALREADY_EXISTS; ++i) {
      std::wstring path = begin + std::to_wstring(i);
      if (CreateDirectoryW(path.c_str(), nullptr) != FALSE) return path;
      error = GetLastError();
    }
  }
  return WriteError{FailureOf(error), error};
}

void RemoveEmptyFolder(const std::wstring& path) { RemoveDirectoryW(path.c_str()); }

}  // namespace zdx::file

#include "OutputFile.h"

#include <windows.h>

#include <algorithm>

#include "SystemMessage.h"
#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

constexpr int kMostNames = 1000;
// Scanners and indexers hold a file for a moment after it was written.
constexpr int kTries = 10;
constexpr DWORD kPause = 100;
constexpr std::size_t kMostBytes = 1 << 20;

// A file that wasn't there before; if it can't be made, the last error tells the reason.
HANDLE MakeBeside(const std::wstring& path, std::wstring& name) {
  for (int i = 0; i < kMostNames; ++i) {
    name = path + L".zdx-" + std::to_wstring(i);
    const HANDLE file = CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || GetLastError() != ERROR_FILE_EXISTS) return file;
  }
  return INVALID_HANDLE_VALUE;
}

// The calls below give the error's number, 0 for none.
DWORD Fill(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto size = static_cast<DWORD>(std::min(bytes.size(), kMostBytes));
    DWORD written = 0;
    if (::WriteFile(file, bytes.data(), size, &written, nullptr) == FALSE) return GetLastError();
    if (written == 0) return ERROR_DISK_FULL;
    bytes.remove_prefix(written);
  }
  return FlushFileBuffers(file) == FALSE ? GetLastError() : ERROR_SUCCESS;
}

// A file that somebody has open can't be told from one that may not be replaced by what moving
// says.
bool IsOpenElsewhere(const std::wstring& path) {
  const HANDLE file =
      CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return GetLastError() == ERROR_SHARING_VIOLATION;
  CloseHandle(file);
  return false;
}

DWORD TakePlace(const std::wstring& name, const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  constexpr DWORD kRefused = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY;
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & kRefused) != 0) {
    return ERROR_ACCESS_DENIED;
  }
  DWORD error = ERROR_SUCCESS;
  for (int i = 0; i < kTries; ++i) {
    if (i > 0) Sleep(kPause);
    if (MoveFileExW(name.c_str(), path.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE) {
      return ERROR_SUCCESS;
    }
    error = GetLastError();
    if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION) return error;
  }
  return IsOpenElsewhere(path) ? DWORD{ERROR_SHARING_VIOLATION} : error;
}

// A colon behind the drive's names a stream within a file, whose place nothing else can take.
bool IsStream(const std::wstring& path) {
  const std::size_t start = path.starts_with(L"\\\\?\\") ? 4 : 0;
  return path.find(L':', start + 2) != std::wstring::npos;
}

}  // namespace

std::optional<std::string> WriteFile(const std::string& path, std::string_view bytes) {
  const std::wstring target = CallablePath(ZDXEngine::WideFromUtf8(path));
  if (IsStream(target)) return "This is a stream of a file, not a file.";
  std::wstring name;
  const HANDLE file = MakeBeside(target, name);
  if (file == INVALID_HANDLE_VALUE) return SystemMessage(GetLastError());
  // Names of devices, such as NUL, stand for them whatever follows the first dot.
  if (GetFileType(file) != FILE_TYPE_DISK) {
    CloseHandle(file);
    return "This is a device, not a file.";
  }
  DWORD error = Fill(file, bytes);
  CloseHandle(file);
  if (error == ERROR_SUCCESS) error = TakePlace(name, target);
  if (error == ERROR_SUCCESS) return std::nullopt;
  DeleteFileW(name.c_str());
  if (error == ERROR_SHARING_VIOLATION) return "Another program has the file open.";
  return SystemMessage(error);
}

}  // namespace zdx

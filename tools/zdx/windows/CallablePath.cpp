#include <windows.h>

#include "SystemNames.h"

namespace zdx {

namespace {

// Plain calls take 259 units; a name beside the file, with a few more at its end, must do as well.
constexpr std::size_t kMostPlainUnits = 247;

// Paths that the system takes as they stand, whatever their length.
bool IsVerbatim(const std::wstring& path) {
  return path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\") ||
         path.starts_with(L"\\??\\");
}

// `path` from its drive or its share on, with single backslashes, without "." and ".."; empty if
// the system can't tell.
std::wstring Resolved(const std::wstring& path) {
  std::wstring full;
  DWORD size = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  // Another thread may change the current folder between the calls.
  while (size > full.size()) {
    full.resize(size);
    size = GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
  }
  full.resize(size);
  return full;
}

}  // namespace

std::wstring CallablePath(const std::wstring& path) {
  if (path.empty() || IsVerbatim(path)) return path;
  std::wstring full = Resolved(path);
  if (full.size() <= kMostPlainUnits) return path;
  if (IsVerbatim(full)) return full;
  if (full.starts_with(L"\\\\")) return L"\\\\?\\UNC\\" + full.substr(2);
  return L"\\\\?\\" + full;
}

}  // namespace zdx

// What paths lead to.
#include <windows.h>

#include <algorithm>
#include <string>

#include "backends/System.h"

namespace zdx {
namespace {

// Longer ones aren't had from the system.
constexpr DWORD kLongestPath = 32768;

// Owns a handle that tells of a file, whatever others do with it meanwhile.
class Looked {
 public:
  explicit Looked(const std::wstring& path)
      : file_(::CreateFileW(path.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                            nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr)) {}
  ~Looked() {
    if (file_ != INVALID_HANDLE_VALUE) ::CloseHandle(file_);
  }
  Looked(const Looked&) = delete;
  Looked& operator=(const Looked&) = delete;

  bool Tell(BY_HANDLE_FILE_INFORMATION& information) const {
    return file_ != INVALID_HANDLE_VALUE && ::GetFileInformationByHandle(file_, &information) != 0;
  }

 private:
  HANDLE file_;
};

// The name that the file or folder at `path` has in its folder; empty if there is none.
std::wstring RealLeaf(const std::wstring& path) {
  WIN32_FIND_DATAW data = {};
  const HANDLE search = ::FindFirstFileW(path.c_str(), &data);
  if (search == INVALID_HANDLE_VALUE) return std::wstring();
  ::FindClose(search);
  return data.cFileName;
}

// Where the elements of a full path begin: behind the drive, or server and share.
std::size_t ElementsAt(const std::wstring& path) {
  if (!path.starts_with(L"\\\\")) return path.find(L'\\') + 1;
  const std::size_t server = path.find(L'\\', 2);
  const std::size_t share = server == std::wstring::npos ? server : path.find(L'\\', server + 1);
  return share == std::wstring::npos ? path.size() : share + 1;
}

// Each element as its folder spells it.
std::wstring WithRealNames(const std::wstring& path) {
  std::size_t at = ElementsAt(path);
  std::wstring real = path.substr(0, at);
  while (at < path.size()) {
    const std::size_t end = std::min(path.find(L'\\', at), path.size());
    const std::wstring element = path.substr(at, end - at);
    const std::wstring leaf = RealLeaf(real + element);
    real += leaf.empty() ? element : leaf;
    if (end < path.size()) real += L'\\';
    at = end + 1;
  }
  return real;
}

}  // namespace

std::wstring FullPath(const std::wstring& path) {
  const DWORD size = ::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  if (path.empty() || size == 0 || size > kLongestPath) return path;
  std::wstring full(size, L'\0');
  const DWORD length = ::GetFullPathNameW(path.c_str(), size, full.data(), nullptr);
  if (length == 0 || length >= size) return path;
  full.resize(length);
  return full;
}

std::wstring ExistingPath(const std::wstring& path) {
  if (path.empty() || ::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) {
    return std::wstring();
  }
  // Such a path is the system's own form, which nobody else makes anything of.
  if (path.starts_with(L"\\\\?\\")) return path;
  return WithRealNames(FullPath(path));
}

std::wstring FileIdentity(const std::wstring& path) {
  BY_HANDLE_FILE_INFORMATION information = {};
  if (path.empty() || !Looked(path).Tell(information)) return std::wstring();
  return std::to_wstring(information.dwVolumeSerialNumber) + L":" +
         std::to_wstring(information.nFileIndexHigh) + L":" +
         std::to_wstring(information.nFileIndexLow);
}

}  // namespace zdx

#include "backends/posix/FileSearch.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdlib>

#include "ZDXEngine/Utf8.h"
#include "backends/System.h"
#include "backends/posix/PathText.h"
#include "backends/posix/RealNames.h"

namespace zdx {
namespace {

std::wstring FileBelow(const std::wstring& folder, const std::wstring& path) {
  const std::optional<std::string> name = RealNameBelow(folder, path);
  if (!name) return std::wstring();
  const std::optional<struct stat> status = StatusOf(*name);
  const bool isFile = status && !S_ISDIR(status->st_mode);
  return isFile ? FullPath(ZDXEngine::WideFromUtf8(*name)) : std::wstring();
}

bool HasExtension(const std::wstring& name) {
  return name.find(L'.', LeafAt(name)) != std::wstring::npos;
}

}  // namespace

std::wstring ExecutablePath() {
  char name[PATH_MAX];
  const ssize_t length = readlink("/proc/self/exe", name, sizeof name);
  const bool isWhole = length > 0 && static_cast<std::size_t>(length) < sizeof name;
  return isWhole ? ZDXEngine::WideFromUtf8({name, static_cast<std::size_t>(length)})
                 : std::wstring();
}

std::vector<std::wstring> FoldersOf(const std::wstring& list) {
  std::vector<std::wstring> folders;
  for (std::size_t at = 0; at < list.size();) {
    const std::size_t end = std::min(list.find(L':', at), list.size());
    if (end > at) folders.push_back(list.substr(at, end - at));
    at = end + 1;
  }
  return folders;
}

std::vector<std::wstring> SystemFolders() {
  std::vector<std::wstring> folders;
  const std::wstring executable = ExecutablePath();
  if (!executable.empty()) folders.push_back(executable.substr(0, LeafAt(executable)));
  folders.push_back(L".");
  const char* const path = std::getenv("PATH");
  const std::vector<std::wstring> others =
      FoldersOf(ZDXEngine::WideFromUtf8(path == nullptr ? "" : path));
  folders.insert(folders.end(), others.begin(), others.end());
  return folders;
}

std::wstring FindInFolders(const std::vector<std::wstring>& folders, const std::wstring& name,
                           const std::wstring& extension) {
  if (name.empty()) return std::wstring();
  if (IsAbsolute(name)) return FileBelow(L"", name);
  const std::wstring wanted = HasExtension(name) ? name : name + extension;
  for (const std::wstring& folder : folders) {
    std::wstring found = FileBelow(folder, wanted);
    if (!found.empty()) return found;
  }
  return std::wstring();
}

}  // namespace zdx

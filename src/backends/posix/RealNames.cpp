#include "backends/posix/RealNames.h"

#include <algorithm>
#include <climits>
#include <string_view>
#include <utility>

#include "ZDXEngine/Utf8.h"
#include "backends/posix/FolderNames.h"
#include "backends/posix/PathText.h"

namespace zdx {
namespace {

bool IsFolder(const std::string& name) {
  const std::optional<struct stat> status = StatusOf(name);
  return status && S_ISDIR(status->st_mode);
}

// The name of what `element` means in `folder`; of a folder if `asFolder`.  Nothing is at `absent`,
// so that the system needn't be asked again.
std::optional<std::string> RealElement(const std::string& folder, std::wstring_view element,
                                       bool asFolder, const std::string& absent) {
  const std::string place = folder.empty() || folder.ends_with('/') ? folder : folder + "/";
  const auto fits = [asFolder](const std::string& name) {
    return asFolder ? IsFolder(name) : StatusOf(name).has_value();
  };
  const std::string exact = place + ZDXEngine::BytesFromWide(element);
  if (exact != absent && fits(exact)) return exact;
  for (const std::string& name : NamesIgnoringCase(folder.empty() ? "." : folder, element)) {
    if (fits(place + name)) return place + name;
  }
  return std::nullopt;
}

// What `path` is below `start`; nothing is at `absent`.  Each folder that is looked into lies in
// the one before it, so their number is that of folders that there are.
std::optional<std::string> RealNameByElements(const std::string& start, std::wstring_view path,
                                              const std::string& absent) {
  std::string name = start;
  std::size_t at = 0;
  // Mostly the last element alone is another.
  const std::size_t leaf = path.rfind(L'/');
  if (leaf != std::wstring_view::npos) {
    std::string folder = start + ZDXEngine::BytesFromWide(path.substr(0, leaf));
    if (IsFolder(folder)) {
      name = std::move(folder);
      at = leaf + 1;
    }
  }
  while (at < path.size()) {
    const std::size_t end = std::min(path.find(L'/', at), path.size());
    const std::optional<std::string> next =
        RealElement(name, path.substr(at, end - at), end < path.size(), absent);
    if (!next) return std::nullopt;
    name = *next;
    at = end + 1;
  }
  // What leads nowhere from the working folder is that folder.
  return name.empty() ? "." : name;
}

// `start` is empty or ends in a slash.
std::optional<std::string> Find(const std::string& start, const std::wstring& path) {
  std::string exact = start + ZDXEngine::BytesFromWide(path);
  if (exact.empty() || exact.size() >= PATH_MAX) return std::nullopt;
  if (StatusOf(exact)) return exact;
  if (IsOfAnotherSystem(path)) return std::nullopt;
  const std::wstring slashed = Slashed(path);
  std::string asSlashed = start + ZDXEngine::BytesFromWide(slashed);
  if (asSlashed != exact && StatusOf(asSlashed)) return asSlashed;
  const bool fromRoot = start.empty() && slashed.starts_with(L'/');
  const std::wstring elements = WithoutDots(slashed);
  std::optional<std::string> found = RealNameByElements(
      fromRoot ? "/" : start, std::wstring_view(elements).substr(fromRoot ? 1 : 0), asSlashed);
  const bool isAsked = found && (!slashed.ends_with(L'/') || IsFolder(*found));
  return isAsked ? found : std::nullopt;
}

}  // namespace

std::optional<struct stat> StatusOf(const std::string& name) {
  struct stat status = {};
  if (name.find('\0') != std::string::npos || stat(name.c_str(), &status) != 0) {
    return std::nullopt;
  }
  return status;
}

std::optional<std::string> RealName(const std::wstring& path) { return Find("", path); }

std::optional<std::string> RealNameBelow(const std::wstring& folder, const std::wstring& name) {
  if (folder.empty() || IsAbsolute(name)) return RealName(name);
  std::optional<std::string> start = RealName(folder);
  if (!start) return std::nullopt;
  if (!start->ends_with('/')) *start += '/';
  return Find(*start, name);
}

}  // namespace zdx

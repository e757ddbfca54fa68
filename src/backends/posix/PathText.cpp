#include "backends/posix/PathText.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "ZDXEngine/Utf8.h"

namespace zdx {
namespace {

bool IsLetter(wchar_t character) {
  return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

}  // namespace

bool HasDrive(std::wstring_view path) {
  return path.size() > 1 && IsLetter(path[0]) && path[1] == L':';
}

bool IsOfAnotherSystem(std::wstring_view path) {
  return HasDrive(path) || path.starts_with(L"\\\\");
}

bool IsAbsolute(std::wstring_view path) {
  return HasDrive(path) || path.starts_with(L'\\') || path.starts_with(L'/');
}

std::wstring Slashed(std::wstring path) {
  std::replace(path.begin(), path.end(), L'\\', L'/');
  return path;
}

std::wstring WithoutDots(std::wstring_view path) {
  const bool hasRoot = path.starts_with(L'/');
  std::vector<std::wstring_view> kept;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t end = std::min(path.find(L'/', at), path.size());
    const std::wstring_view element = path.substr(at, end - at);
    at = end + 1;
    if (element.empty() || element == L".") continue;
    const bool climbs = element == L"..";
    if (climbs && !kept.empty() && kept.back() != L"..") {
      kept.pop_back();
    } else if (!climbs || !hasRoot) {
      kept.push_back(element);
    }
  }
  std::wstring result(hasRoot ? L"/" : L"");
  for (const std::wstring_view element : kept) {
    if (!result.empty() && result.back() != L'/') result += L'/';
    result += element;
  }
  return result;
}

std::wstring Joined(const std::wstring& folder, const std::wstring& name) {
  if (folder.empty() || name.empty()) return folder + name;
  return folder.ends_with(L'/') ? folder + name : folder + L'/' + name;
}

std::size_t LeafAt(std::wstring_view path) {
  const std::size_t separator = path.find_last_of(L"/\\");
  return separator == std::wstring_view::npos ? 0 : separator + 1;
}

std::wstring FromRoot(const std::wstring& path) {
  if (path.starts_with(L'/')) return path;
  std::error_code error;
  const std::filesystem::path working = std::filesystem::current_path(error);
  if (error) return std::wstring();
  return Joined(ZDXEngine::WideFromUtf8(working.native()), path);
}

}  // namespace zdx

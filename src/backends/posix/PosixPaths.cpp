#include "backends/posix/PosixPaths.h"

#include <sys/stat.h>

#include <algorithm>
#include <cwchar>
#include <string>

#include "ZDXEngine/Utf8.h"
#include "backends/posix/BoundedText.h"
#include "backends/posix/ConfigFolder.h"
#include "backends/posix/FileSearch.h"
#include "backends/posix/PathText.h"
#include "backends/posix/RealNames.h"

namespace zdx {
namespace {

constexpr wchar_t kSeparators[] = L"/\\";
constexpr mode_t kAnybody = 0777;

std::wstring Text(const wchar_t* text) { return text == nullptr ? std::wstring() : text; }

// `found` without "." and "..", unless a link would make that another file.
std::wstring Tidied(const std::string& found) {
  const std::wstring path = ZDXEngine::WideFromUtf8(found);
  std::wstring tidy = WithoutDots(path);
  return StatusOf(ZDXEngine::BytesFromWide(tidy)) ? tidy : path;
}

std::wstring Combined(const std::wstring& folder, const std::wstring& file) {
  if (file.empty()) return Tidied(ZDXEngine::BytesFromWide(folder));
  if (IsOfAnotherSystem(file)) return file;
  if (const auto found = RealNameBelow(folder, file)) return Tidied(*found);
  if (IsAbsolute(file)) return WithoutDots(Slashed(file));
  if (IsOfAnotherSystem(folder)) return folder + L'\\' + file;
  const bool isFolder = StatusOf(ZDXEngine::BytesFromWide(folder)).has_value();
  const std::wstring path = WithoutDots(Joined(isFolder ? folder : Slashed(folder), Slashed(file)));
  // Behind a folder that isn't there ".." leads on all the same.
  const auto found = RealName(path);
  return found ? Tidied(*found) : path;
}

// Where the last element of `path` begins, and the separator before it, unless that is a root.
std::size_t SpecificationAt(const std::wstring& path) {
  const std::size_t rest = HasDrive(path) ? 2 : path.starts_with(L"\\\\") ? 2 : 0;
  const std::size_t root = path.find_first_of(kSeparators, rest) == rest ? rest + 1 : rest;
  const std::size_t separator = path.find_last_of(kSeparators);
  return separator == std::wstring::npos || separator < root ? root : separator;
}

}  // namespace

HRESULT PosixPaths::SHGetFolderPathW(void* /*owner*/, int which, void* /*token*/,
                                     std::uint32_t /*flags*/, wchar_t* path) {
  path[0] = L'\0';
  if (which != os::kRoamingAppDataCreated) return E_INVALIDARG;
  const std::wstring folder = ConfigFolder();
  const bool isThere = !folder.empty() && MakeConfigFolder(folder);
  return isThere && CopyBounded(folder, path, os::kPathSize) == 0 ? S_OK : E_FAIL;
}

int PosixPaths::PathAppendW(wchar_t* path, const wchar_t* name) {
  if (path == nullptr || name == nullptr) return 0;
  const std::wstring whole(name);
  const std::size_t first = IsOfAnotherSystem(whole) ? 0 : whole.find_first_not_of(kSeparators);
  const std::wstring rest = first == std::wstring::npos ? std::wstring() : whole.substr(first);
  return PathCombineW(path, path, rest.c_str()) == nullptr ? 0 : 1;
}

int PosixPaths::PathFileExistsW(const wchar_t* path) {
  const std::wstring name = Text(path);
  return name.size() < os::kPathSize && RealName(name) ? 1 : 0;
}

int PosixPaths::PathIsRelativeW(const wchar_t* path) { return IsAbsolute(Text(path)) ? 0 : 1; }

wchar_t* PosixPaths::PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) {
  if (path == nullptr) return nullptr;
  const std::wstring combined = Combined(Text(folder), Text(file));
  const bool fits = CopyBounded(combined, path, os::kPathSize) == 0;
  return fits && !combined.empty() ? path : nullptr;
}

int PosixPaths::PathRemoveFileSpecW(wchar_t* path) {
  if (path == nullptr) return 0;
  const std::wstring whole(path);
  const std::size_t at = SpecificationAt(whole);
  if (at >= whole.size()) return 0;
  path[at] = L'\0';
  return 1;
}

std::uint32_t PosixPaths::SearchPathW(const wchar_t* folders, const wchar_t* name,
                                      const wchar_t* extension, std::uint32_t size, wchar_t* path,
                                      wchar_t** leaf) {
  const std::wstring found = FindInFolders(
      folders == nullptr ? SystemFolders() : FoldersOf(folders), Text(name), Text(extension));
  if (found.empty()) return 0;
  const auto length = static_cast<std::uint32_t>(found.size());
  if (path == nullptr || length >= size) return length + 1;
  CopyBounded(found, path, size);
  if (leaf != nullptr) *leaf = path + LeafAt(found);
  return length;
}

int PosixPaths::CreateDirectoryW(const wchar_t* path, void* /*security*/) {
  const std::wstring whole = Text(path);
  if (whole.empty() || IsOfAnotherSystem(whole)) return 0;
  const std::size_t leaf = LeafAt(whole);
  const auto folder = RealName(leaf == 0 ? L"." : whole.substr(0, leaf));
  if (!folder) return 0;
  const std::string name = *folder + "/" + ZDXEngine::BytesFromWide(whole.substr(leaf));
  return mkdir(name.c_str(), kAnybody) == 0 ? 1 : 0;
}

std::uint32_t PosixPaths::GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size) {
  const std::wstring executable = ExecutablePath();
  if (module != nullptr || executable.empty() || size == 0) return 0;
  if (CopyBounded(executable, path, size) == 0) {
    return static_cast<std::uint32_t>(executable.size());
  }
  // What there is room for.
  CopyBounded(std::wstring_view(executable).substr(0, size - 1), path, size);
  return size;
}

os::Errno PosixPaths::_wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize,
                                    wchar_t* directory, std::size_t directorySize, wchar_t* name,
                                    std::size_t nameSize, wchar_t* extension,
                                    std::size_t extensionSize) {
  const std::wstring whole = Text(path);
  const std::size_t directoryAt = HasDrive(whole) ? 2 : 0;
  const std::size_t nameAt = std::max(LeafAt(whole), directoryAt);
  const std::size_t dot = whole.rfind(L'.');
  const std::size_t extensionAt = dot == std::wstring::npos || dot < nameAt ? whole.size() : dot;
  const struct {
    std::wstring_view text;
    wchar_t* target;
    std::size_t size;
  } kParts[] = {
      {std::wstring_view(whole).substr(0, directoryAt), drive, driveSize},
      {std::wstring_view(whole).substr(directoryAt, nameAt - directoryAt), directory,
       directorySize},
      {std::wstring_view(whole).substr(nameAt, extensionAt - nameAt), name, nameSize},
      {std::wstring_view(whole).substr(extensionAt), extension, extensionSize},
  };
  os::Errno result = path == nullptr ? kInvalidArgument : 0;
  for (const auto& part : kParts) {
    // A part that nobody asks for.
    if (part.target == nullptr && part.size == 0) continue;
    if (result == 0) result = CopyBounded(part.text, part.target, part.size);
  }
  for (const auto& part : kParts) {
    if (result != 0) CopyBounded(L"", part.target, part.size);
  }
  return result;
}

os::Errno PosixPaths::wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  const os::Errno copied = CopyBounded(Text(source), target, size);
  return source == nullptr ? kInvalidArgument : copied;
}

os::Errno PosixPaths::wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  const std::size_t length = target == nullptr ? 0 : wcsnlen(target, size);
  // Without a terminator there is nothing to append to.
  const bool isText = source != nullptr && length < size;
  const std::wstring whole = isText ? std::wstring(target, length) + source : std::wstring();
  const os::Errno copied = CopyBounded(whole, target, size);
  return isText ? copied : kInvalidArgument;
}

os::Errno PosixPaths::wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source,
                                std::size_t count) {
  const std::wstring_view text(source == nullptr ? L"" : source,
                               source == nullptr ? 0 : wcsnlen(source, count));
  const os::Errno copied = CopyBounded(text, target, size);
  return source == nullptr ? kInvalidArgument : copied;
}

}  // namespace zdx

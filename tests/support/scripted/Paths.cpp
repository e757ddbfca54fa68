#include "support/scripted/Paths.h"

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace scripted {
namespace {

// Copies `text` and its terminator if the target has room for them, otherwise empties it.
bool Put(std::wstring_view text, wchar_t* target, std::size_t size) {
  const bool fits = text.size() < size;
  if (size == 0) return false;
  target[fits ? text.copy(target, text.size()) : 0] = L'\0';
  return fits;
}

os::Errno PutPart(std::wstring_view text, wchar_t* target, std::size_t size) {
  return Put(text, target, size) ? 0 : os::kBufferTooSmall;
}

bool HasDrive(std::wstring_view path) { return path.size() > 1 && path[1] == L':'; }

bool IsAbsolute(std::wstring_view path) { return path.starts_with(L'\\') || HasDrive(path); }

std::wstring Joined(const std::wstring& folder, const std::wstring& file) {
  if (folder.empty() || IsAbsolute(file)) return file;
  return folder.ends_with(L'\\') ? folder + file : folder + L'\\' + file;
}

std::string Words(std::uint32_t size) { return std::to_string(size); }

}  // namespace

HRESULT Paths::SHGetFolderPathW(void* owner, int which, void* token, std::uint32_t flags,
                                wchar_t* path) {
  const std::string words = Arguments(Given(owner), which, Given(token), flags);
  const Outcome outcome = calls_.Record("", "SHGetFolderPathW", words);
  if (outcome.status == 0) Put(roamingFolder, path, os::kPathSize);
  return outcome.status;
}

int Paths::PathAppendW(wchar_t* path, const wchar_t* name) {
  const Outcome outcome = calls_.Record("", "PathAppendW", Arguments(path, name));
  const std::wstring joined = outcome.status == 0 ? Joined(path, name) : std::wstring();
  return Put(joined, path, os::kPathSize) && outcome.status == 0 ? 1 : 0;
}

int Paths::PathFileExistsW(const wchar_t* path) {
  const Outcome outcome = calls_.Record("", "PathFileExistsW", Arguments(path));
  return outcome.status == 0 && existing.contains(path) ? 1 : 0;
}

int Paths::PathIsRelativeW(const wchar_t* path) {
  calls_.Record("", "PathIsRelativeW", Arguments(path));
  return IsAbsolute(path) ? 0 : 1;
}

wchar_t* Paths::PathCombineW(wchar_t* path, const wchar_t* folder, const wchar_t* file) {
  std::string words = Arguments(folder, file);
  const bool isZeroed =
      std::all_of(path, path + os::kPathSize, [](wchar_t character) { return character == 0; });
  if (!isZeroed) words += ", into what isn't zeros";
  const Outcome outcome = calls_.Record("", "PathCombineW", words);
  const std::wstring joined = outcome.status == 0 ? Joined(folder, file) : std::wstring();
  return Put(joined, path, os::kPathSize) && outcome.status == 0 ? path : nullptr;
}

int Paths::PathRemoveFileSpecW(wchar_t* path) {
  const Outcome outcome = calls_.Record("", "PathRemoveFileSpecW", Arguments(path));
  wchar_t* const separator = std::wcsrchr(path, L'\\');
  if (outcome.status != 0 || separator == nullptr) return 0;
  *separator = L'\0';
  return 1;
}

std::uint32_t Paths::SearchPathW(const wchar_t* folders, const wchar_t* name,
                                 const wchar_t* extension, std::uint32_t size, wchar_t* path,
                                 wchar_t** leaf) {
  const Outcome outcome =
      calls_.Record("", "SearchPathW", Arguments(folders, name, extension, Words(size)));
  std::optional<std::wstring> found = onOwnPath;
  if (folders != nullptr) {
    const auto row = inFolders.find(folders);
    found = row == inFolders.end() ? std::nullopt : std::optional(row->second);
  }
  if (outcome.status != 0) return static_cast<std::uint32_t>(outcome.status);
  if (!found) return 0;
  if (found->size() >= size) return static_cast<std::uint32_t>(found->size() + 1);
  Put(*found, path, size);
  *leaf = path + found->find_last_of(L'\\') + 1;
  return static_cast<std::uint32_t>(found->size());
}

int Paths::CreateDirectoryW(const wchar_t* path, void* security) {
  const std::string words = Arguments(path, Given(security));
  if (calls_.Record("", "CreateDirectoryW", words).status != 0) return 0;
  return existing.insert(path).second ? 1 : 0;
}

std::uint32_t Paths::GetModuleFileNameW(void* module, wchar_t* path, std::uint32_t size) {
  const std::string words = Arguments(Given(module), Words(size));
  if (calls_.Record("", "GetModuleFileNameW", words).status != 0) return 0;
  Put(executable, path, size);
  return static_cast<std::uint32_t>(executable.size());
}

os::Errno Paths::_wsplitpath_s(const wchar_t* path, wchar_t* drive, std::size_t driveSize,
                               wchar_t* directory, std::size_t directorySize, wchar_t* name,
                               std::size_t nameSize, wchar_t* extension,
                               std::size_t extensionSize) {
  const std::string words = Arguments(path, driveSize, directorySize, nameSize, extensionSize);
  if (const Outcome outcome = calls_.Record("", "_wsplitpath_s", words); outcome.status != 0) {
    return outcome.status;
  }
  std::wstring_view rest(path);
  const std::wstring_view driveText = rest.substr(0, HasDrive(rest) ? 2 : 0);
  rest.remove_prefix(driveText.size());
  const std::wstring_view folderText = rest.substr(0, rest.rfind(L'\\') + 1);
  rest.remove_prefix(folderText.size());
  const std::wstring_view nameText = rest.substr(0, rest.rfind(L'.'));
  return PutPart(driveText, drive, driveSize) | PutPart(folderText, directory, directorySize) |
         PutPart(nameText, name, nameSize) |
         PutPart(rest.substr(nameText.size()), extension, extensionSize);
}

os::Errno Paths::wcscpy_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  const Outcome outcome = calls_.Record("", "wcscpy_s", Arguments(size, source));
  if (outcome.status == 0) return PutPart(source, target, size);
  Put(L"", target, size);
  return outcome.status;
}

os::Errno Paths::wcscat_s(wchar_t* target, std::size_t size, const wchar_t* source) {
  const Outcome outcome = calls_.Record("", "wcscat_s", Arguments(target, size, source));
  if (outcome.status == 0) return PutPart(std::wstring(target) + source, target, size);
  Put(L"", target, size);
  return outcome.status;
}

os::Errno Paths::wcsncpy_s(wchar_t* target, std::size_t size, const wchar_t* source,
                           std::size_t count) {
  const Outcome outcome = calls_.Record("", "wcsncpy_s", Arguments(size, source, count));
  if (outcome.status == 0) {
    return PutPart(std::wstring_view(source).substr(0, count), target, size);
  }
  Put(L"", target, size);
  return outcome.status;
}

}  // namespace scripted

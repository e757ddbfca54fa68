#include <windows.h>

#include <algorithm>

#include "NamePattern.h"
#include "SystemNames.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

// The names of files, not of folders, that match `pattern` in `folder`, which is empty or ends in a
// separator.  All names are looked at: asked for a pattern, the system compares the short names
// that it keeps for old programs, too.
std::vector<std::wstring> NamesIn(const std::wstring& folder, std::wstring_view pattern) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found = {};
  const HANDLE search = FindFirstFileExW(CallablePath(folder + L"*").c_str(), FindExInfoBasic,
                                         &found, FindExSearchNameMatch, nullptr, 0);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!isFolder && MatchesPattern(found.cFileName, pattern)) names.emplace_back(found.cFileName);
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  std::sort(names.begin(), names.end(), ComesBefore);
  return names;
}

}  // namespace

std::vector<std::string> FilesMeantBy(const std::string& name) {
  const std::wstring wide = ZDXEngine::WideFromUtf8(name);
  const std::size_t separator = wide.find_last_of(L"\\/:");
  const std::size_t start = separator == std::wstring::npos ? 0 : separator + 1;
  if (wide.find_first_of(L"*?", start) == std::wstring::npos) return {name};
  const std::wstring folder = wide.substr(0, start);
  std::vector<std::string> files;
  for (const std::wstring& found : NamesIn(folder, std::wstring_view(wide).substr(start))) {
    files.push_back(ZDXEngine::BytesFromWide(folder + found));
  }
  if (files.empty()) files.push_back(name);
  return files;
}

}  // namespace zdx

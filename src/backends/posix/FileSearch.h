// The search for a file in many folders.
#pragma once

#include <string>
#include <vector>

namespace zdx {

// The executable that this process runs; empty if the system doesn't tell.
std::wstring ExecutablePath();

// The folder of the executable, the working folder, and those of the environment's PATH.
std::vector<std::wstring> SystemFolders();
// The folders of `list`, which colons separate.
std::vector<std::wstring> FoldersOf(const std::wstring& list);

// The full path of the first file that is there: `name` itself if it is absolute, otherwise `name`
// below each folder, with `extension` behind a name without one.  Empty if there is none.
std::wstring FindInFolders(const std::vector<std::wstring>& folders, const std::wstring& name,
                           const std::wstring& extension);

}  // namespace zdx

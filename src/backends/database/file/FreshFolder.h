// Folders for what nobody keeps.
#pragma once

#include <string>
#include <variant>

#include "backends/database/file/Replacement.h"

namespace zdx::file {

// Makes an empty folder below the system's one for temporary files; its full path.  On POSIX nobody
// but the user may enter it, on Windows who may enter the folder above.
std::variant<std::wstring, WriteError> MakeFreshFolder();

// Takes the folder away if it is empty.
void RemoveEmptyFolder(const std::wstring& path);

}  // namespace zdx::file

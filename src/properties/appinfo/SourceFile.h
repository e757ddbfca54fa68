// The one way in which a drawing file is opened to be read byte by byte.
#pragma once

#include <string>

#include "platform/os/Files.h"

namespace ZDXEngine {

// Opens the file for reading, shared with those who read or write it.  The caller closes it;
// os::kInvalidHandle if it can't be opened.
os::FileHandle OpenSourceFile(const std::wstring& path);

}  // namespace ZDXEngine

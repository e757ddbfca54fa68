// The folder for what programs keep for a user.
#pragma once

#include <string>

namespace zdx {

// The absolute folder that XDG_CONFIG_HOME names, otherwise ".config" in the user's home.  Empty if
// nobody tells where that is.
std::wstring ConfigFolder();
// Makes it, for the user alone, and what is missing above it; true if it is there then.
bool MakeConfigFolder(const std::wstring& folder);

}  // namespace zdx

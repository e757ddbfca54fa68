// What files and folders are really called that others write in their own way.
#pragma once

#include <sys/stat.h>

#include <optional>
#include <string>

namespace zdx {

// What stands at `name`, links followed; nullopt if nothing does or the name can't be one.
std::optional<struct stat> StatusOf(const std::string& name);

// The name, in bytes, of what `path` leads to: the name of exactly these bytes; otherwise, unless
// the path is of another system, that with slashes for backslashes; otherwise one whose elements
// differ in case alone, the first in the order of bytes.  nullopt if there is none of them.
std::optional<std::string> RealName(const std::wstring& path);
// The same for `name` below `folder`, unless it is absolute.
std::optional<std::string> RealNameBelow(const std::wstring& folder, const std::wstring& name);

}  // namespace zdx

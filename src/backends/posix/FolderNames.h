// The names in a folder, found without regard to case.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zdx {

// The names in `folder` that `name` is but for case, in the order of bytes.  None if the folder
// can't be read.
std::vector<std::string> NamesIgnoringCase(const std::string& folder, std::wstring_view name);

}  // namespace zdx

// Names of files that come from a drawing.
#pragma once

#include <string>
#include <string_view>

namespace zdx::database {

// A name for a file, made of `stored`, that is one name on every system and leads to no other
// folder and no device: its last element, without characters that names can't have, at most 100
// bytes of UTF-8.  A name of its own if nothing is left.
std::wstring SafeLeafName(std::wstring_view stored);

}  // namespace zdx::database

// The file in what a drawing keeps of a link to data.
#pragma once

#include <string>
#include <string_view>

namespace zdx::model {

// The path that `connection` begins with.  An exclamation mark ends it that stands directly behind
// the extension of its last element; what follows names a part of the file.
std::wstring LinkedFile(std::wstring_view connection);

}  // namespace zdx::model

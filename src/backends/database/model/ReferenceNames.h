// What the names and paths of references mean, in whatever format they stand.
#pragma once

#include <string_view>

namespace zdx::model {

// Whether a record of that name came with a drawing that this one refers to: the name of that
// drawing's block stands before a bar.
bool IsDependentName(std::wstring_view name);

// What stands behind the last separator, of either system, in `path`.
std::wstring_view LeafOf(std::wstring_view path);

// Whether `text` ends in a file's name that has an extension.
bool HasExtension(std::wstring_view text);

}  // namespace zdx::model

// What the names and paths of references mean, in whatever format they stand.
#pragma once

#include <string_view>

namespace zdx::model {

// Whether a record of that name came with a drawing that this one refers to: the name of that
// drawing's block stands before a bar.
bool IsDependentName(std::wstring_view name);

// What stands behind the last separator, of either system, in `path`.
std::wstring_view LeafOf(std::wstring_view path);

// The path of the file in what a data link connects to: behind the file, of which all names have an
// extension, an exclamation mark begins what is meant of it.
std::wstring_view FileOfConnection(std::wstring_view connection);

// Whether `text` ends in a file's name that has an extension.
bool HasExtension(std::wstring_view text);

}  // namespace zdx::model

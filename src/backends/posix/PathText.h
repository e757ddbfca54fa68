// Paths as text, before anybody looks for what they lead to.
#pragma once

#include <string>
#include <string_view>

namespace zdx {

// "C:\..." and the like.
bool HasDrive(std::wstring_view path);
// "C:\..." and "\\server\...", which no folder here stands for.
bool IsOfAnotherSystem(std::wstring_view path);
// Those, and what begins with either separator.
bool IsAbsolute(std::wstring_view path);

// With a slash for each backslash.
std::wstring Slashed(std::wstring path);
// Without empty elements and ".", and with ".." taken back by the element before it; "" for what
// leads nowhere from where it starts.  Slashes alone separate.
std::wstring WithoutDots(std::wstring_view path);
// `folder`, a slash and `name`; whichever is empty is left out, and the slash with it.
std::wstring Joined(const std::wstring& folder, const std::wstring& name);
// The place of the last element of `path`, which either separator ends.
std::size_t LeafAt(std::wstring_view path);
// `path` from the working folder on if it is relative; slashes alone separate, and "." and ".."
// stay. Empty if there is no working folder.
std::wstring FromRoot(const std::wstring& path);

}  // namespace zdx

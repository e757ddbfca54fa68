// Patterns of file names.
#pragma once

#include <string_view>

namespace zdx {

// Whether `name` is what `pattern` says: `*` stands for any characters, `?` for one, the rest for
// itself in either case, as the file system compares.
bool MatchesPattern(std::wstring_view name, std::wstring_view pattern);

// Whether `a` comes before `b`, without regard to case; names that differ in nothing else come in
// the order of their units.
bool ComesBefore(std::wstring_view a, std::wstring_view b);

}  // namespace zdx

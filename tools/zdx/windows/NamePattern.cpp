#include "NamePattern.h"

#include <windows.h>

#include <cstddef>

namespace zdx {

namespace {

int Compare(std::wstring_view a, std::wstring_view b) {
  return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(),
                              static_cast<int>(b.size()), TRUE);
}

}  // namespace

bool MatchesPattern(std::wstring_view name, std::wstring_view pattern) {
  std::size_t at = 0;
  std::size_t inPattern = 0;
  // Where the last star stands, and where what it takes ends so far.
  std::size_t star = std::wstring_view::npos;
  std::size_t taken = 0;
  while (at < name.size()) {
    if (inPattern < pattern.size() && pattern[inPattern] == L'*') {
      star = inPattern++;
      taken = at;
    } else if (inPattern < pattern.size() &&
               (pattern[inPattern] == L'?' ||
                Compare(name.substr(at, 1), pattern.substr(inPattern, 1)) == CSTR_EQUAL)) {
      ++at, ++inPattern;
    } else if (star != std::wstring_view::npos) {
      at = ++taken;
      inPattern = star + 1;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(L'*', inPattern) == std::wstring_view::npos;
}

bool ComesBefore(std::wstring_view a, std::wstring_view b) {
  const int order = Compare(a, b);
  return order == CSTR_EQUAL ? a < b : order == CSTR_LESS_THAN;
}

}  // namespace zdx

#include "backends/database/model/ReferenceNames.h"

#include <algorithm>

namespace zdx::model {

bool IsDependentName(std::wstring_view name) { return name.find(L'|') != std::wstring_view::npos; }

std::wstring_view LeafOf(std::wstring_view path) {
  const std::size_t separator = path.find_last_of(L"/\\");
  return separator == std::wstring_view::npos ? path : path.substr(separator + 1);
}

// A name may hold exclamation marks, too.
std::wstring_view FileOfConnection(std::wstring_view connection) {
  bool hasDot = false;
  for (std::size_t i = 0; i < connection.size(); ++i) {
    if (connection[i] == L'/' || connection[i] == L'\\') hasDot = false;
    if (connection[i] == L'.') hasDot = true;
    if (connection[i] == L'!' && hasDot) return connection.substr(0, i);
  }
  return connection;
}

bool HasExtension(std::wstring_view text) {
  constexpr std::size_t kLongest = 5;
  const std::wstring_view leaf = LeafOf(text);
  const std::size_t dot = leaf.rfind(L'.');
  if (dot == std::wstring_view::npos || dot == 0) return false;
  const std::wstring_view extension = leaf.substr(dot + 1);
  const auto isPlain = [](wchar_t c) {
    return (c >= L'0' && c <= L'9') || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
  };
  return !extension.empty() && extension.size() <= kLongest &&
         std::all_of(extension.begin(), extension.end(), isPlain);
}

}  // namespace zdx::model

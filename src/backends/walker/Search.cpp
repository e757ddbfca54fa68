#include "backends/walker/Search.h"

#include <algorithm>
#include <string_view>

#include "backends/walker/FileKinds.h"

namespace zdx::walker {
namespace {

constexpr const wchar_t* kSeparators = L"/\\";
constexpr std::wstring_view kSchemeEnd = L"://";
constexpr const wchar_t* kDrawingExtension = L".dwg";
constexpr const wchar_t* kFontExtension = L".shx";

bool IsLetter(wchar_t c) { return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z'); }

bool IsOfScheme(wchar_t c) {
  return IsLetter(c) || (c >= L'0' && c <= L'9') || c == L'+' || c == L'-' || c == L'.';
}

bool HasExtension(std::wstring_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  const std::size_t leaf = separator == std::wstring_view::npos ? 0 : separator + 1;
  return path.find(L'.', leaf) != std::wstring_view::npos;
}

std::wstring_view FolderOf(std::wstring_view path) {
  const std::size_t separator = path.find_last_of(kSeparators);
  return path.substr(0, separator == std::wstring_view::npos ? 0 : separator);
}

// What the host's answer depends on.  No path holds a NUL.
std::wstring KeyOf(const model::FileReference& reference, const std::wstring& asker) {
  std::wstring key(FolderOf(asker));
  key += L'\0';
  key += static_cast<wchar_t>(L'0' + KindOf(reference.use).hint);
  key += reference.path;
  return key;
}

}  // namespace

bool IsAddress(const std::wstring& path) {
  const std::size_t length = path.find(kSchemeEnd);
  if (length == std::wstring::npos || length == 0 || !IsLetter(path[0])) return false;
  return std::all_of(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(length), IsOfScheme);
}

std::vector<std::wstring> NamesToTry(model::FileUse use, const std::wstring& path) {
  if (IsAddress(path)) return {};
  if (HasExtension(path)) return {path};
  if (IsDrawing(use)) return {path + kDrawingExtension};
  switch (use) {
    case model::FileUse::kFont:
    case model::FileUse::kBigFont:
    case model::FileUse::kShapeFile:
      return {path, path + kFontExtension};
    default:
      return {path};
  }
}

std::wstring Search::Look(const model::FileReference& reference, const std::wstring& asker,
                          ZnDbDatabase* asking) {
  const auto [known, isNew] = known_.try_emplace(KeyOf(reference, asker));
  if (!isNew) return known->second;
  const int hint = KindOf(reference.use).hint;
  for (const std::wstring& name : NamesToTry(reference.use, reference.path)) {
    known->second = surroundings_.Find(name, asking, hint);
    if (!known->second.empty()) break;
  }
  return known->second;
}

}  // namespace zdx::walker

// The library's string.
#pragma once

#include <string>

// An owned text.  Positions and lengths are signed, -1 for not found.
class ZnString {
 public:
  ZnString() = default;
  ZnString(const wchar_t* text)  // NOLINT(google-explicit-constructor)
      : text_(text == nullptr ? L"" : text) {}

  operator const wchar_t*() const { return text_.c_str(); }  // NOLINT(google-explicit-constructor)

  int length() const { return static_cast<int>(text_.length()); }
  // The last position at which one of `characters` stands.
  int findLastOneOf(const wchar_t* characters) const {
    const std::wstring::size_type at = text_.find_last_of(characters);
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
  }
  // The `count` characters from `start` on.
  ZnString substr(int start, int count) const {
    return ZnString(
        text_.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(count)).c_str());
  }

 private:
  std::wstring text_;
};

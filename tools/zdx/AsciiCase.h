// Comparison of words whatever the case of their letters A to Z.
#pragma once

#include <algorithm>
#include <string_view>
#include <type_traits>

namespace zdx {

template <class Char>
constexpr bool EqualsIgnoringAsciiCase(std::basic_string_view<Char> a,
                                       std::type_identity_t<std::basic_string_view<Char>> b) {
  const auto lower = [](Char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Char>(c - 'A' + 'a') : c;
  };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [&](Char left, Char right) { return lower(left) == lower(right); });
}

template <class Char>
constexpr bool EndsInIgnoringAsciiCase(std::basic_string_view<Char> text,
                                       std::type_identity_t<std::basic_string_view<Char>> end) {
  return text.size() >= end.size() &&
         EqualsIgnoringAsciiCase(text.substr(text.size() - end.size()), end);
}

}  // namespace zdx

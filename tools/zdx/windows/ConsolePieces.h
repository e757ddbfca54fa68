// A text in pieces that a console takes.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zdx {

// The length of the first piece of `text`: as long as `most` units allow without half of a pair of
// surrogates at its end.  `most` is at least 2.
inline std::size_t FirstPiece(std::wstring_view text, std::size_t most) {
  const std::size_t length = std::min(text.size(), most);
  const bool inPair = length < text.size() && text[length] >= 0xDC00 && text[length] <= 0xDFFF &&
                      text[length - 1] >= 0xD800 && text[length - 1] <= 0xDBFF;
  return inPair ? length - 1 : length;
}

}  // namespace zdx

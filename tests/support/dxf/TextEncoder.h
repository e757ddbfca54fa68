#pragma once

#include <string>
#include <string_view>

#include "support/drawing/PageEncoder.h"

namespace dxf {

// Turns UTF-8 texts into the bytes that a file of some encoding holds for them.
class TextEncoder {
 public:
  // For files of UTF-8.
  TextEncoder() = default;

  // For files of the code page `codePage`: ANSI_ and its number.  Throws std::invalid_argument if
  // the system doesn't know that page.
  explicit TextEncoder(std::string_view codePage) : page_(codePage) {}

  // As the page encodes it, with control characters and the caret as caret escapes.  Throws
  // std::invalid_argument if `utf8` isn't UTF-8.
  std::string Encode(std::string_view utf8) const;

 private:
  drawing::PageEncoder page_;
};

}  // namespace dxf

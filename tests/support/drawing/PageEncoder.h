#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "support/drawing/PageBytes.h"

namespace drawing {

// Turns UTF-8 texts into the bytes that a file of some encoding holds for them.
class PageEncoder {
 public:
  // For files of UTF-8.
  PageEncoder();

  // For files of the code page `codePage`: ANSI_ and its number.  Throws std::invalid_argument if
  // the system doesn't know that page.
  explicit PageEncoder(std::string_view codePage);

  ~PageEncoder();

  // What the code page lacks becomes \U+XXXX, one escape for each UTF-16 unit.  Throws
  // std::invalid_argument if `utf8` isn't UTF-8.
  std::string Encode(std::string_view utf8) const;

 private:
  void AppendCharacter(std::string& text, std::string_view character) const;

  // Null for UTF-8.
  std::unique_ptr<PageBytes> page_;
};

}  // namespace drawing

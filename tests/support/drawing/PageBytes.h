// What a code page of the system's holds for a character.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace drawing {

class PageBytes {
 public:
  // Of the code page of that number; null if the system doesn't know it.
  static std::unique_ptr<PageBytes> Make(int page);
  virtual ~PageBytes() = default;

  // The page's bytes for one character of valid UTF-8, empty if it has none.
  virtual std::string Find(std::string_view character) const = 0;
};

}  // namespace drawing

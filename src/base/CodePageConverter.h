// The system's conversion from one code page.
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include "base/CodePage.h"

namespace zdx {

// One conversion.  Not for use by two threads at once.
class CodePageConverter {
 public:
  // Null if the system knows no such page.
  static std::unique_ptr<CodePageConverter> Make(CodePageId page);
  virtual ~CodePageConverter() = default;

  // Appends to `text` what `bytes` mean up to the first that means nothing, and returns how many
  // bytes that were.  What follows a byte that means nothing costs nothing.
  virtual std::size_t Convert(std::string_view bytes, std::wstring& text) = 0;
};

}  // namespace zdx

// A copy of a text on the drawing library's heap.
#pragma once

#include "platform/zndb/ZnUt.h"

namespace ZDXEngine {

// Holds no text at first, and frees its text at the end of its scope.
class HeapText {
 public:
  HeapText() = default;
  ~HeapText() {
    if (buffer_ != nullptr) znutDelBuffer(buffer_);
  }
  HeapText(const HeapText&) = delete;
  HeapText& operator=(const HeapText&) = delete;

  // Called once.  On failure there is no text.
  Zent::ErrorStatus Copy(const wchar_t* source) { return znutNewString(source, buffer_); }
  // Null for no text.
  const wchar_t* Get() const { return buffer_; }

 private:
  wchar_t* buffer_ = nullptr;
};

}  // namespace ZDXEngine

// What a decompressor has written so far, and may copy from.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace zdx::dwg {

// Writes into a string of bounded size.  Each operation is false, and writes nothing, if it would
// leave the window.
class OutputWindow {
 public:
  // Takes the memory for `most` bytes at once, so that growing never takes more.
  explicit OutputWindow(std::size_t most) : most_(most) { out_.reserve(most); }

  bool Append(std::string_view bytes) {
    if (bytes.size() > most_ - out_.size()) return false;
    out_.append(bytes);
    return true;
  }

  // Copies `length` bytes that begin `distance` before the end.  They may overlap their copy.
  bool Copy(std::size_t distance, std::size_t length) {
    if (distance == 0 || distance > out_.size() || length > most_ - out_.size()) return false;
    const std::size_t begin = out_.size();
    out_.resize(begin + length);
    char* const to = out_.data() + begin;
    const char* const from = to - distance;
    if (distance >= length) {
      std::copy_n(from, length, to);
    } else {
      for (std::size_t i = 0; i < length; ++i) to[i] = from[i];
    }
    return true;
  }

  std::string Take() { return std::move(out_); }

 private:
  std::size_t most_;
  std::string out_;
};

}  // namespace zdx::dwg

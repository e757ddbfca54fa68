// Reads whole bytes of a section without bits, one after another.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "base/LittleEndian.h"

namespace zdx::dwg {

// Answers nothing from the first request on that the bytes can't fulfil.
class ByteReader {
 public:
  // `bytes` outlive it.
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

  std::optional<std::string_view> Take(std::size_t count) {
    if (count > bytes_.size()) {
      bytes_ = {};
      return std::nullopt;
    }
    const std::string_view taken = bytes_.substr(0, count);
    bytes_.remove_prefix(count);
    return taken;
  }

  // A number with its low byte first.
  template <class Integer>
  std::optional<Integer> Number() {
    const auto bytes = Take(sizeof(Integer));
    return bytes ? std::optional(LittleEndian<Integer>(*bytes)) : std::nullopt;
  }

  bool Skip(std::size_t count) { return Take(count).has_value(); }

 private:
  std::string_view bytes_;
};

}  // namespace zdx::dwg

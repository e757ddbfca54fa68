#include "Base64.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zdx {

namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kBytesInGroup = 3;
constexpr std::size_t kLettersInGroup = 4;

}  // namespace

std::string Base64(std::span<const std::uint8_t> bytes) {
  std::string text;
  text.reserve((bytes.size() + kBytesInGroup - 1) / kBytesInGroup * kLettersInGroup);
  while (!bytes.empty()) {
    const std::size_t count = std::min(bytes.size(), kBytesInGroup);
    std::uint32_t group = 0;
    for (std::size_t i = 0; i < kBytesInGroup; ++i)
      group = group << 8 | (i < count ? bytes[i] : 0u);
    for (std::size_t i = 0; i < kLettersInGroup; ++i) {
      text.push_back(i <= count ? kAlphabet[group >> (18 - 6 * i) & 0x3F] : '=');
    }
    bytes = bytes.subspan(count);
  }
  return text;
}

}  // namespace zdx

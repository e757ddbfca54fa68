#include "base/Utf16.h"

#include "base/LittleEndian.h"

namespace zdx {

void AppendUtf16Unit(std::wstring& text, std::uint16_t unit) {
  if constexpr (sizeof(wchar_t) > 2) {
    const bool low = unit >= 0xDC00 && unit <= 0xDFFF;
    if (low && !text.empty()) {
      const auto high = static_cast<char32_t>(text.back());
      if (high >= 0xD800 && high <= 0xDBFF) {
        text.back() = static_cast<wchar_t>(0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00u));
        return;
      }
    }
  }
  text.push_back(static_cast<wchar_t>(unit));
}

std::wstring WideFromUtf16(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size() / 2);
  for (; bytes.size() >= 2; bytes.remove_prefix(2)) {
    AppendUtf16Unit(text, LittleEndian<std::uint16_t>(bytes));
  }
  return text;
}

}  // namespace zdx

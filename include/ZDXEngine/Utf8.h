// Wide text to UTF-8 and back, for clients and for the engine alike.
//
// A wide text holds UTF-32 where wchar_t has four bytes and UTF-16 where it has two.  Any file name
// of the system makes the trip to the other form and back.  Where wchar_t has four bytes names are
// bytes: a byte 0xNN that isn't part of valid UTF-8 becomes the lone surrogate U+DCNN, and that
// surrogate becomes the byte again.  Where it has two names are 16-bit units: a lone surrogate
// becomes the three bytes of its own number, and these bytes become the surrogate again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace ZDXEngine {

namespace utf8_detail {

inline constexpr char32_t kReplacement = 0xFFFD;
inline constexpr bool kNamesAreUnits = sizeof(wchar_t) == 2;

constexpr bool IsSurrogate(char32_t point) { return point >= 0xD800 && point <= 0xDFFF; }

// The length of the valid sequence at `at`, with its code point in `point`; 0 if it isn't valid.
inline std::size_t SequenceAt(std::string_view bytes, std::size_t at, char32_t& point) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[at + i]); };
  const std::size_t left = bytes.size() - at;
  const std::uint8_t lead = byte(0);
  std::size_t length = 0;
  char32_t least = 0;
  if (lead < 0x80) {
    point = lead;
    return 1;
  }
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2, least = 0x80, point = lead & 0x1Fu;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3, least = 0x800, point = lead & 0x0Fu;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4, least = 0x10000, point = lead & 0x07u;
  } else {
    return 0;
  }
  if (left < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0u) != 0x80u) return 0;
    point = (point << 6) | (byte(i) & 0x3Fu);
  }
  return point < least || point > 0x10FFFF || IsSurrogate(point) ? 0 : length;
}

// The length of what BytesFromWide makes of a lone surrogate, if it stands at `at` and names are
// 16-bit units; else 0.
inline std::size_t LoneSurrogateAt(std::string_view bytes, std::size_t at, char32_t& point) {
  if constexpr (kNamesAreUnits) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[at + i]); };
    if (bytes.size() - at < 3 || byte(0) != 0xED || byte(1) < 0xA0 || byte(1) > 0xBF ||
        (byte(2) & 0xC0u) != 0x80u) {
      return 0;
    }
    point = 0xD000u | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu);
    return 3;
  }
  return 0;
}

inline void AppendWide(std::wstring& text, char32_t point) {
  if constexpr (kNamesAreUnits) {
    if (point >= 0x10000) {
      point -= 0x10000;
      text.push_back(static_cast<wchar_t>(0xD800 + (point >> 10)));
      text.push_back(static_cast<wchar_t>(0xDC00 + (point & 0x3FF)));
      return;
    }
  }
  text.push_back(static_cast<wchar_t>(point));
}

inline void AppendUtf8(std::string& bytes, char32_t point) {
  const auto push = [&](char32_t value) { bytes.push_back(static_cast<char>(value)); };
  if (point < 0x80) {
    push(point);
  } else if (point < 0x800) {
    push(0xC0 | (point >> 6)), push(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    push(0xE0 | (point >> 12)), push(0x80 | ((point >> 6) & 0x3F)), push(0x80 | (point & 0x3F));
  } else {
    push(0xF0 | (point >> 18)), push(0x80 | ((point >> 12) & 0x3F));
    push(0x80 | ((point >> 6) & 0x3F)), push(0x80 | (point & 0x3F));
  }
}

// Takes one code point from `text` at `at` and moves `at` behind it.  A surrogate pair gives the
// character it stands for, a lone surrogate itself.
inline char32_t NextPoint(std::wstring_view text, std::size_t& at) {
  const auto unit = [&](std::size_t i) {
    return static_cast<char32_t>(static_cast<std::make_unsigned_t<wchar_t>>(text[i]));
  };
  const char32_t first = unit(at++);
  if (first >= 0xD800 && first <= 0xDBFF && at < text.size()) {
    const char32_t second = unit(at);
    if (second >= 0xDC00 && second <= 0xDFFF) {
      ++at;
      return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
    }
  }
  return first;
}

template <class Lone>
std::string Encode(std::wstring_view text, Lone onLoneSurrogate) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const char32_t point = NextPoint(text, at);
    if (IsSurrogate(point) || point > 0x10FFFF) {
      onLoneSurrogate(bytes, point);
    } else {
      AppendUtf8(bytes, point);
    }
  }
  return bytes;
}

}  // namespace utf8_detail

// The wide form of `bytes`.  Never fails: a byte outside valid UTF-8 becomes U+DC00 + byte, unless
// it belongs to what BytesFromWide makes of a lone surrogate where wchar_t has two bytes.
inline std::wstring WideFromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) {
    char32_t point = 0;
    std::size_t length = utf8_detail::SequenceAt(bytes, at, point);
    if (length == 0) length = utf8_detail::LoneSurrogateAt(bytes, at, point);
    if (length == 0) point = 0xDC00u + static_cast<std::uint8_t>(bytes[at]);
    utf8_detail::AppendWide(text, point);
    at += length == 0 ? 1 : length;
  }
  return text;
}

// The inverse of WideFromUtf8, exact for a name's bytes where wchar_t has four bytes, and for its
// units where it has two: WideFromUtf8 of the result is `text` then.  A lone surrogate that stands
// for no byte is written as the three bytes of its own number, as other programs on such systems
// do. A number above U+10FFFF, which is no character, becomes U+FFFD.
inline std::string BytesFromWide(std::wstring_view text) {
  return utf8_detail::Encode(text, [](std::string& bytes, char32_t point) {
    if (!utf8_detail::kNamesAreUnits && point >= 0xDC80 && point <= 0xDCFF) {
      bytes.push_back(static_cast<char>(point - 0xDC00));
    } else {
      utf8_detail::AppendUtf8(bytes, point > 0x10FFFF ? utf8_detail::kReplacement : point);
    }
  });
}

// Valid UTF-8 for display and interchange: a lone surrogate becomes U+FFFD.
inline std::string Utf8FromWide(std::wstring_view text) {
  return utf8_detail::Encode(text, [](std::string& bytes, char32_t) {
    utf8_detail::AppendUtf8(bytes, utf8_detail::kReplacement);
  });
}

}  // namespace ZDXEngine

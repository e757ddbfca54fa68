#include "backends/database/model/StoredText.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "ZDXEngine/Utf8.h"
#include "base/Utf16.h"

namespace zdx::model {
namespace {

// "\U+" and four hexadecimal digits: one UTF-16 unit.  "\M+", a digit for the page and four
// hexadecimal digits: one character of two bytes.
constexpr std::wstring_view kUnitEscape = L"\\U+";
constexpr std::wstring_view kDoubleByteEscape = L"\\M+";
constexpr std::size_t kDigits = 4;

struct DoubleBytePage {
  wchar_t digit;
  CodePageId page;
};
constexpr DoubleBytePage kDoubleBytePages[] = {
    {L'1', 932}, {L'2', 950}, {L'3', 949}, {L'4', 1361}, {L'5', 936}};

std::optional<std::uint32_t> HexadecimalAt(std::wstring_view text, std::size_t at) {
  if (text.size() - at < kDigits) return std::nullopt;
  std::uint32_t value = 0;
  for (const wchar_t c : text.substr(at, kDigits)) {
    std::uint32_t digit = 0;
    if (c >= L'0' && c <= L'9') {
      digit = static_cast<std::uint32_t>(c - L'0');
    } else if (c >= L'A' && c <= L'F') {
      digit = static_cast<std::uint32_t>(c - L'A') + 10;
    } else if (c >= L'a' && c <= L'f') {
      digit = static_cast<std::uint32_t>(c - L'a') + 10;
    } else {
      return std::nullopt;
    }
    value = value * 16 + digit;
  }
  return value;
}

using DoubleByteDecoders = std::map<CodePageId, CodePageDecoder>;

std::optional<std::wstring> DoubleByteCharacter(wchar_t digit, std::uint32_t code,
                                                DoubleByteDecoders& decoders) {
  for (const DoubleBytePage& row : kDoubleBytePages) {
    if (row.digit != digit) continue;
    const char bytes[] = {static_cast<char>(code >> 8), static_cast<char>(code & 0xFF)};
    const bool single = code < 0x100;
    return decoders.try_emplace(row.page, row.page)
        .first->second.Decode(std::string_view(single ? bytes + 1 : bytes, single ? 1 : 2));
  }
  return std::nullopt;
}

// Appends what the escape at `at` stands for and returns its length; 0 if there is none.
std::size_t AppendEscape(std::wstring_view text, std::size_t at, DoubleByteDecoders& decoders,
                         std::wstring& out) {
  const std::wstring_view rest = text.substr(at);
  if (rest.substr(0, kUnitEscape.size()) == kUnitEscape) {
    const auto unit = HexadecimalAt(rest, kUnitEscape.size());
    if (!unit) return 0;
    AppendUtf16Unit(out, static_cast<std::uint16_t>(*unit));
    return kUnitEscape.size() + kDigits;
  }
  constexpr std::size_t kCodeAt = kDoubleByteEscape.size() + 1;
  if (rest.substr(0, kDoubleByteEscape.size()) == kDoubleByteEscape && rest.size() > kCodeAt) {
    const auto code = HexadecimalAt(rest, kCodeAt);
    if (!code) return 0;
    const auto character = DoubleByteCharacter(rest[kCodeAt - 1], *code, decoders);
    if (!character) return 0;
    out += *character;
    return kCodeAt + kDigits;
  }
  return 0;
}

// Appends what the caret at `at` and the character behind it stand for, and returns their length; 0
// if they are no escape.
std::size_t AppendCaret(std::wstring_view text, std::size_t at, std::wstring& out) {
  if (at + 1 >= text.size()) return 0;
  const wchar_t c = text[at + 1];
  if (c == L' ') {
    out.push_back(L'^');
  } else if (c >= L'@' && c <= L'_') {
    out.push_back(static_cast<wchar_t>(c - L'@'));
  } else {
    return 0;
  }
  return 2;
}

std::wstring ExpandEscapes(std::wstring_view text, bool backslashes, bool carets,
                           DoubleByteDecoders& decoders) {
  std::wstring out;
  out.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    std::size_t length = 0;
    if (backslashes && text[at] == L'\\') length = AppendEscape(text, at, decoders, out);
    if (carets && text[at] == L'^') length = AppendCaret(text, at, out);
    if (length == 0) out.push_back(text[at]);
    at += std::max<std::size_t>(length, 1);
  }
  return out;
}

bool IsPlain(std::string_view bytes) {
  return std::all_of(bytes.begin(), bytes.end(),
                     [](char c) { return static_cast<signed char>(c) > 0; });
}

}  // namespace

StoredTextDecoder::StoredTextDecoder(Version version, CodePageId page, ControlCharacters controls)
    : utf8_(version >= kVersion1021), controls_(controls), page_(page) {}

std::wstring StoredTextDecoder::DecodeBytes(std::string_view bytes, TextFlaws& flaws) {
  if (IsPlain(bytes)) return {bytes.begin(), bytes.end()};
  CodePageDecoder utf8(kUtf8);
  if (auto text = utf8_ ? utf8.Decode(bytes) : page_.Decode(bytes)) return *std::move(text);
  flaws.notInEncoding = true;
  if (auto text = utf8_ ? page_.Decode(bytes) : utf8.Decode(bytes)) return *std::move(text);
  return page_.DecodeLeniently(bytes);
}

std::wstring StoredTextDecoder::Decode(std::string_view bytes, TextUse use, TextFlaws& flaws) {
  return Expand(DecodeBytes(bytes, flaws), use, flaws);
}

std::wstring StoredTextDecoder::DecodeUtf16(std::string_view bytes, TextUse use, TextFlaws& flaws) {
  return Expand(WideFromUtf16(bytes), use, flaws);
}

std::wstring StoredTextDecoder::Expand(std::wstring text, TextUse use, TextFlaws& flaws) {
  const bool backslashes = use == TextUse::kName || !utf8_;
  if (text.find_first_of(L"\\^") != std::wstring::npos) {
    text = ExpandEscapes(text, backslashes, controls_ == ControlCharacters::kCaret, doubleByte_);
  }
  if (std::erase(text, L'\0') != 0) flaws.hasNul = true;
  return text;
}

}  // namespace zdx::model

#include "base/CodePage.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "ZDXEngine/Utf8.h"
#include "base/CodePageConverter.h"

namespace zdx {
namespace {

struct CodePageName {
  std::string_view name;  // in lower case
  CodePageId page;
};

// The names that drawings use, without the prefix "ansi_" or "dos" and the number behind it.
constexpr CodePageName kNames[] = {
    {"ascii", kWestern},  {"iso8859-1", 28591}, {"iso8859-2", 28592}, {"iso8859-3", 28593},
    {"iso8859-4", 28594}, {"iso8859-5", 28595}, {"iso8859-6", 28596}, {"iso8859-7", 28597},
    {"iso8859-8", 28598}, {"iso8859-9", 28599}, {"mac-roman", 10000}, {"big5", 950},
    {"ksc5601", 949},     {"johab", 1361},      {"gb2312", 936},      {"utf-8", kUtf8},
    {"utf8", kUtf8},
};

// The pages that drawings use, beside the two that need no converter.
constexpr CodePageId kPages[] = {
    437,  737,  775,   850,   852,   855,   857,   860,   861,   863,   864,   865,  866,
    869,  874,  932,   936,   949,   950,   1250,  1251,  1253,  1254,  1255,  1256, 1257,
    1258, 1361, 10000, 28591, 28592, 28593, 28594, 28595, 28596, 28597, 28598, 28599};

// What the Western page has at 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<char16_t, 32> kWesternHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool KnownPage(CodePageId page) {
  return page == kWestern || page == kUtf8 ||
         std::find(std::begin(kPages), std::end(kPages), page) != std::end(kPages);
}

std::optional<CodePageId> NumberBehind(std::string_view text, std::string_view prefix) {
  if (text.substr(0, prefix.size()) != prefix) return std::nullopt;
  text.remove_prefix(prefix.size());
  if (text.empty() || text.size() > 5) return std::nullopt;
  CodePageId page = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return std::nullopt;
    page = page * 10 + (c - '0');
  }
  return KnownPage(page) ? std::optional(page) : std::nullopt;
}

std::optional<std::wstring> DecodeWestern(std::string_view bytes, bool lenient) {
  std::wstring text;
  text.reserve(bytes.size());
  for (const char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    wchar_t wide = static_cast<wchar_t>(byte);
    if (byte >= 0x80 && byte < 0xA0) {
      const char16_t mapped = kWesternHigh[byte - 0x80u];
      if (mapped == 0 && !lenient) return std::nullopt;
      if (mapped != 0) wide = static_cast<wchar_t>(mapped);
    }
    text.push_back(wide);
  }
  return text;
}

std::optional<std::wstring> DecodeUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    char32_t point = 0;
    const std::size_t length = ZDXEngine::utf8_detail::SequenceAt(bytes, at, point);
    if (length == 0) return std::nullopt;
    at += length;
  }
  return ZDXEngine::WideFromUtf8(bytes);
}

}  // namespace

std::optional<CodePageId> CodePageByName(std::string_view name) {
  std::string lower(name.substr(0, 32));
  std::transform(lower.begin(), lower.end(), lower.begin(), LowerAscii);
  for (const CodePageName& row : kNames) {
    if (row.name == lower) return row.page;
  }
  for (const std::string_view prefix : {"ansi_", "dos"}) {
    if (const auto page = NumberBehind(lower, prefix)) return page;
  }
  return std::nullopt;
}

CodePageDecoder::CodePageDecoder(CodePageId page) : page_(page) {
  const bool convertedHere = page == kWestern || page == kUtf8;
  if (!convertedHere && KnownPage(page)) converter_ = CodePageConverter::Make(page);
}

CodePageDecoder::~CodePageDecoder() = default;
CodePageDecoder::CodePageDecoder(CodePageDecoder&&) noexcept = default;
CodePageDecoder& CodePageDecoder::operator=(CodePageDecoder&&) noexcept = default;

std::optional<std::wstring> CodePageDecoder::Decode(std::string_view bytes) {
  if (page_ == kWestern) return DecodeWestern(bytes, false);
  if (page_ == kUtf8) return DecodeUtf8(bytes);
  if (converter_ == nullptr) return std::nullopt;
  std::wstring text;
  const std::size_t read = converter_->Convert(bytes, text);
  return read == bytes.size() ? std::optional(std::move(text)) : std::nullopt;
}

std::wstring CodePageDecoder::DecodeLeniently(std::string_view bytes) {
  if (converter_ == nullptr) return *DecodeWestern(bytes, true);
  std::wstring text;
  bytes.remove_prefix(converter_->Convert(bytes, text));
  while (!bytes.empty()) {
    text += *DecodeWestern(bytes.substr(0, 1), true);
    bytes.remove_prefix(1);
    bytes.remove_prefix(converter_->Convert(bytes, text));
  }
  return text;
}

}  // namespace zdx

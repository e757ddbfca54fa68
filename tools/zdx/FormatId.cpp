#include "FormatId.h"

#include <cstddef>
#include <cstdint>

namespace zdx {

namespace {

constexpr std::string_view kPattern = "00000000-0000-0000-0000-000000000000";
constexpr int kBytesBeforeLastDash = 2;

void AppendHex(std::wstring& text, std::uint32_t value, int digits) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    text.push_back(L"0123456789ABCDEF"[value >> shift & 0xF]);
  }
}

std::optional<std::uint32_t> DigitOf(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return std::nullopt;
}

// The number that the hexadecimal digits of `text` from `at` on spell; `at` is moved behind them
// and behind a dash that follows.
std::uint32_t TakeHex(std::string_view text, std::size_t& at, int digits) {
  std::uint32_t value = 0;
  for (int i = 0; i < digits; ++i) value = value << 4 | DigitOf(text[at++]).value_or(0);
  if (at < text.size() && text[at] == '-') ++at;
  return value;
}

bool HasForm(std::string_view text) {
  if (text.size() != kPattern.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (kPattern[i] == '-' ? text[i] != '-' : !DigitOf(text[i])) return false;
  }
  return true;
}

}  // namespace

std::wstring FormatIdText(const GUID& id) {
  std::wstring text = L"{";
  AppendHex(text, static_cast<std::uint32_t>(id.Data1), 8);
  text.push_back(L'-');
  AppendHex(text, id.Data2, 4);
  text.push_back(L'-');
  AppendHex(text, id.Data3, 4);
  text.push_back(L'-');
  for (int i = 0; i < 8; ++i) {
    if (i == kBytesBeforeLastDash) text.push_back(L'-');
    AppendHex(text, id.Data4[i], 2);
  }
  text.push_back(L'}');
  return text;
}

std::optional<GUID> ParseFormatId(std::string_view text) {
  if (text.starts_with('{') && text.ends_with('}')) text = text.substr(1, text.size() - 2);
  if (!HasForm(text)) return std::nullopt;
  GUID id = {};
  std::size_t at = 0;
  id.Data1 = TakeHex(text, at, 8);
  id.Data2 = static_cast<std::uint16_t>(TakeHex(text, at, 4));
  id.Data3 = static_cast<std::uint16_t>(TakeHex(text, at, 4));
  for (auto& byte : id.Data4) byte = static_cast<std::uint8_t>(TakeHex(text, at, 2));
  return id;
}

}  // namespace zdx

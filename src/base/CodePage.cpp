#include "base/CodePage.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "ZDXEngine/Utf8.h"

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

struct ConverterName {
  CodePageId page;
  const char* name;
};

// The converter's name for each page that drawings use.
constexpr ConverterName kConverters[] = {
    {437, "CP437"},        {737, "CP737"},        {775, "CP775"},        {850, "CP850"},
    {852, "CP852"},        {855, "CP855"},        {857, "CP857"},        {860, "CP860"},
    {861, "CP861"},        {863, "CP863"},        {864, "CP864"},        {865, "CP865"},
    {866, "CP866"},        {869, "CP869"},        {874, "CP874"},        {932, "CP932"},
    {936, "CP936"},        {949, "CP949"},        {950, "CP950"},        {1250, "CP1250"},
    {1251, "CP1251"},      {1253, "CP1253"},      {1254, "CP1254"},      {1255, "CP1255"},
    {1256, "CP1256"},      {1257, "CP1257"},      {1258, "CP1258"},      {1361, "JOHAB"},
    {10000, "MACINTOSH"},  {28591, "ISO-8859-1"}, {28592, "ISO-8859-2"}, {28593, "ISO-8859-3"},
    {28594, "ISO-8859-4"}, {28595, "ISO-8859-5"}, {28596, "ISO-8859-6"}, {28597, "ISO-8859-7"},
    {28598, "ISO-8859-8"}, {28599, "ISO-8859-9"},
};

// What the Western page has at 0x80 to 0x9F; 0 where it has nothing.
constexpr std::array<char16_t, 32> kWesternHigh = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

// The converter of this page takes the backslash for the currency sign that old screens showed in
// its place; drawings mean the backslash.
constexpr CodePageId kJohab = 1361;
constexpr wchar_t kWonSign = 0x20A9;

char LowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool KnownPage(CodePageId page) {
  return page == kWestern || page == kUtf8 ||
         std::any_of(std::begin(kConverters), std::end(kConverters),
                     [page](const ConverterName& row) { return row.page == page; });
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

// Owns one conversion of the C library, from the page to UTF-8.
class CodePageDecoder::Converter {
 public:
  explicit Converter(const char* name) : handle_(iconv_open("UTF-8", name)) {}
  ~Converter() {
    if (Usable()) iconv_close(handle_);
  }
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;

  bool Usable() const {
    return handle_ != reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr)
  }

  // The text of `bytes` up to the first that means nothing; `bytes` becomes what is left.
  std::wstring Convert(std::string_view& bytes) {
    // No page here gives more than four bytes of UTF-8 for one byte.
    std::string utf8(bytes.size() * 4 + kMostHeldBack, '\0');
    char* in = const_cast<char*>(bytes.data());
    char* out = utf8.data();
    std::size_t inLeft = bytes.size();
    std::size_t outLeft = utf8.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    iconv(handle_, &in, &inLeft, &out, &outLeft);
    // A letter may be held back for an accent that could follow it.
    iconv(handle_, nullptr, nullptr, &out, &outLeft);
    bytes.remove_prefix(bytes.size() - inLeft);
    return ZDXEngine::WideFromUtf8(std::string_view(utf8.data(), utf8.size() - outLeft));
  }

 private:
  static constexpr std::size_t kMostHeldBack = 16;

  iconv_t handle_;
};

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
  for (const ConverterName& row : kConverters) {
    if (row.page == page) converter_ = std::make_unique<Converter>(row.name);
  }
}

CodePageDecoder::~CodePageDecoder() = default;
CodePageDecoder::CodePageDecoder(CodePageDecoder&&) noexcept = default;
CodePageDecoder& CodePageDecoder::operator=(CodePageDecoder&&) noexcept = default;

// The text of `bytes` up to the first that means nothing in the page.
std::wstring CodePageDecoder::Convert(std::string_view& bytes) {
  std::wstring text = converter_->Convert(bytes);
  if (page_ == kJohab) std::replace(text.begin(), text.end(), kWonSign, L'\\');
  return text;
}

std::optional<std::wstring> CodePageDecoder::Decode(std::string_view bytes) {
  if (page_ == kWestern) return DecodeWestern(bytes, false);
  if (page_ == kUtf8) return DecodeUtf8(bytes);
  if (converter_ == nullptr || !converter_->Usable()) return std::nullopt;
  std::wstring text = Convert(bytes);
  return bytes.empty() ? std::optional(std::move(text)) : std::nullopt;
}

std::wstring CodePageDecoder::DecodeLeniently(std::string_view bytes) {
  if (converter_ == nullptr || !converter_->Usable()) return *DecodeWestern(bytes, true);
  std::wstring text = Convert(bytes);
  while (!bytes.empty()) {
    text += *DecodeWestern(bytes.substr(0, 1), true);
    bytes.remove_prefix(1);
    text += Convert(bytes);
  }
  return text;
}

}  // namespace zdx

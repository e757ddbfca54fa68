#include "base/CodePageConverter.h"

#include <iconv.h>

#include <algorithm>
#include <cerrno>

#include "ZDXEngine/Utf8.h"

namespace zdx {
namespace {

struct ConverterName {
  CodePageId page;
  const char* name;
};

// Those that aren't called "CP" and the page's number.
constexpr ConverterName kConverterNames[] = {
    {1361, "JOHAB"},       {10000, "MACINTOSH"},  {28591, "ISO-8859-1"}, {28592, "ISO-8859-2"},
    {28593, "ISO-8859-3"}, {28594, "ISO-8859-4"}, {28595, "ISO-8859-5"}, {28596, "ISO-8859-6"},
    {28597, "ISO-8859-7"}, {28598, "ISO-8859-8"}, {28599, "ISO-8859-9"},
};

std::string NameOf(CodePageId page) {
  for (const ConverterName& row : kConverterNames) {
    if (row.page == page) return row.name;
  }
  return "CP" + std::to_string(page);
}

// What the converters make of a character that is another one in the page.
struct Mistaken {
  CodePageId page;
  wchar_t converted;
  wchar_t meant;
};

constexpr Mistaken kMistaken[] = {
    // Drawings write paths and codes with these.
    {1361, 0x20A9, L'\\'},  // the currency sign that old screens showed in its place
    {864, 0x066A, L'%'},    // the Arabic percent sign
    // Windows has the signs of units in this page.
    {10000, 0x03A9, 0x2126},
    {10000, 0x0394, 0x2206},
};

// A Korean character that isn't in the page.  The converter refuses it, too, but takes it away.
constexpr CodePageId kKorean = 949;
constexpr std::string_view kSwallowed = "\xA2\xE8";

// Owns one conversion of the C library, from the page to UTF-8.
class Iconv : public CodePageConverter {
 public:
  explicit Iconv(CodePageId page)
      : page_(page), handle_(iconv_open("UTF-8", NameOf(page).c_str())) {}
  ~Iconv() override {
    if (Usable()) iconv_close(handle_);
  }
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;

  bool Usable() const {
    return handle_ != reinterpret_cast<iconv_t>(-1);  // NOLINT(performance-no-int-to-ptr)
  }

  std::size_t Convert(std::string_view bytes, std::wstring& text) override {
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    char* in = const_cast<char*>(bytes.data());
    std::size_t left = bytes.size();
    bool stopped = Piece(&in, &left, text);
    while (stopped && errno == E2BIG) stopped = Piece(&in, &left, text);
    const std::string_view taken = bytes.substr(0, bytes.size() - left);
    if (stopped && page_ == kKorean && taken.ends_with(kSwallowed)) {
      left += kSwallowed.size();
    }
    // A letter is held back for an accent that could follow it.
    Piece(nullptr, nullptr, text);
    return bytes.size() - left;
  }

 private:
  // Appends the next part of the text; true if that isn't all of it.
  bool Piece(char** in, std::size_t* left, std::wstring& text) {
    char utf8[1024];
    char* out = utf8;
    std::size_t room = sizeof utf8;
    const bool stopped = iconv(handle_, in, left, &out, &room) == static_cast<std::size_t>(-1);
    std::wstring piece = ZDXEngine::WideFromUtf8({utf8, static_cast<std::size_t>(out - utf8)});
    for (const Mistaken& row : kMistaken) {
      if (row.page == page_) std::replace(piece.begin(), piece.end(), row.converted, row.meant);
    }
    text += piece;
    return stopped;
  }

  CodePageId page_;
  iconv_t handle_;
};

}  // namespace

std::unique_ptr<CodePageConverter> CodePageConverter::Make(CodePageId page) {
  auto converter = std::make_unique<Iconv>(page);
  if (!converter->Usable()) return nullptr;
  return converter;
}

}  // namespace zdx

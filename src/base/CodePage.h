// The code pages in which older drawings store their texts.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace zdx {

// The number of a code page as Windows counts them; 65001 is UTF-8.
using CodePageId = int;

inline constexpr CodePageId kWestern = 1252;
inline constexpr CodePageId kUtf8 = 65001;

// The page that a drawing means by `name`, such as "ANSI_932" or "dos850", in any case; nullopt if
// no page of that name is known.
std::optional<CodePageId> CodePageByName(std::string_view name);

class CodePageConverter;

// Decodes texts of one code page.  Not for use by two threads at once.
class CodePageDecoder {
 public:
  // A page without a converter on this system decodes nothing.
  explicit CodePageDecoder(CodePageId page);
  ~CodePageDecoder();
  CodePageDecoder(CodePageDecoder&&) noexcept;
  CodePageDecoder& operator=(CodePageDecoder&&) noexcept;

  CodePageId page() const { return page_; }
  // The text of `bytes`; nullopt if some of them mean nothing in this page.
  std::optional<std::wstring> Decode(std::string_view bytes);
  // The same with every byte that means nothing taken as the Western character of its number.
  std::wstring DecodeLeniently(std::string_view bytes);

 private:
  CodePageId page_;
  std::unique_ptr<CodePageConverter> converter_;
};

}  // namespace zdx

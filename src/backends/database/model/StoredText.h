// From the bytes of a stored text to the text that the drawing means.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "backends/database/model/Version.h"
#include "base/CodePage.h"

namespace zdx::model {

// What a text is used for.  Names can't hold a backslash, so "\U+XXXX" in a name is always an
// escape.  In the text of a value it is one below AC1021 only: later files hold every character
// as it is, and the sequence is the drafter's own.
enum class TextUse { kName, kValue };

// How a format writes control characters.  Caret: `^J` is a line feed, `^` and a blank is the caret
// itself, and so for every character from `@` to `_`.
enum class ControlCharacters { kPlain, kCaret };

// What was wrong with a text.
struct TextFlaws {
  bool notInEncoding = false;  // another encoding than the file's had to be used
  bool hasNul = false;         // NUL characters were dropped
};

// Decodes the texts of one drawing.  Not for use by two threads at once.
class StoredTextDecoder {
 public:
  // Texts are UTF-8 from AC1021 on and of `page` before.
  StoredTextDecoder(Version version, CodePageId page, ControlCharacters controls);

  // The text of `bytes`.  A text that isn't valid in the drawing's encoding is tried in the other
  // one, and at last its stray bytes are taken as Western, so that none is lost.  Escapes of
  // `\U+XXXX` and
  // `\M+nXXXX` form are decoded as TextUse says; a pair of surrogates gives one character.
  std::wstring Decode(std::string_view bytes, TextUse use, TextFlaws& flaws);
  // The same of a text in UTF-16 with the low byte first, in whatever version.  Half a pair of
  // surrogates is kept as it is.
  std::wstring DecodeUtf16(std::string_view bytes, TextUse use, TextFlaws& flaws);

 private:
  std::wstring Expand(std::wstring text, TextUse use, TextFlaws& flaws);
  std::wstring DecodeBytes(std::string_view bytes, TextFlaws& flaws);

  bool utf8_;
  ControlCharacters controls_;
  CodePageDecoder page_;
  // Those of double-byte escapes, made at the first escape that names them.
  std::map<CodePageId, CodePageDecoder> doubleByte_;
};

}  // namespace zdx::model

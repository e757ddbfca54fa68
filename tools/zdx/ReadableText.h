// Texts of a file made fit for a terminal.
//
// A drawing is somebody else's: its texts may hold escape sequences or turn the direction of
// writing.  Such characters are shown by their numbers, "\x1b" below U+0080 and "\u202e" above.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zdx {

// `text`, which is valid UTF-8, on one line: line feeds are shown by their numbers as well.
std::string ReadableText(std::string_view text);
// The same for a wide text.
std::string ReadableText(std::wstring_view text);

// The lines of `text`, each as ReadableText makes it; a carriage return before a line feed is
// dropped.  Never empty.
std::vector<std::string> ReadableLines(std::wstring_view text);

}  // namespace zdx

// Lines of a text file, whatever ends them: LF, CR LF or a lone CR, also mixed; and CR CR LF, which
// a conversion of line ends makes when it is done twice.
#pragma once

#include <cstddef>
#include <string_view>

namespace zdx::dxf {

// The line that begins at `at`, without its end; `at` moves to the next line.  `at` must lie before
// the end of `bytes`.
std::string_view TakeLine(std::string_view bytes, std::size_t& at);

// `line` without blanks and tabs at both ends.
std::string_view Trimmed(std::string_view line);

// Reads a line that is wholly a decimal number, blanks around it allowed.  False for any other line
// and for numbers beyond six digits.
bool ParseCode(std::string_view line, int& code);

// The place of the next line at or after `from` that holds nothing but "0", blanks allowed; npos if
// there is none.  `from` must be the begin of a line.
std::size_t FindZeroLine(std::string_view bytes, std::size_t from);

}  // namespace zdx::dxf

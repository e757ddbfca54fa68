// Texts whose length in bytes stands in the four bytes before their first character.
#pragma once

#include <cstddef>

#include "ZDXEngine/Automation.h"

namespace zdx {

// A new text with the `length` characters at `text`, and a terminator behind them; null if memory
// ran out or the length in bytes doesn't fit its four bytes.
BSTR NewBstr(const wchar_t* text, std::size_t length);
// Releases a text, which may be null.
void FreeBstr(BSTR text);
// The number of characters; 0 for null.
std::size_t BstrLength(BSTR text);

}  // namespace zdx

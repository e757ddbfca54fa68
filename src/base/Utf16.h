// Texts that files store in UTF-16.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zdx {

// Appends the code unit `unit`, joining it with the other half of a pair before it.  A half without
// its other one stays as it is.
void AppendUtf16Unit(std::wstring& text, std::uint16_t unit);

// The text of `bytes`, whose units have the low byte first; a byte over is left out.
std::wstring WideFromUtf16(std::string_view bytes);

}  // namespace zdx

// Simple case for the letters that tests use: ASCII, Latin-1, Greek, Cyrillic and Deseret.
#pragma once

#include <string>

namespace scripted {

// The code points of `text` with capitals made small.
std::u32string FoldCase(const std::wstring& text);

}  // namespace scripted

// How wide a text is on a terminal.
#pragma once

#include <cstddef>
#include <string_view>

namespace zdx {

// The columns that `text`, valid UTF-8 without control characters, takes in a fixed-width font:
// none for a character that combines with the one before it, two for an East Asian wide one.
std::size_t DisplayWidth(std::string_view text);

}  // namespace zdx

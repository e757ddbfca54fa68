// Rows of a bitmap that are stored as runs of equal pixels.
//
// Pairs of bytes: a count and what to repeat so often; or 0 and 0 for the end of a row, 1 for the
// end of the picture, 2 for a step over as many columns and rows as two more bytes say, and
// anything else for as many single pixels, padded to two bytes.  Pixels of four bits stand two in a
// byte, the high half first, and are repeated in turn.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "backends/database/preview/BitmapHead.h"

namespace zdx::preview {

// Writes the pixels of `packed` to `rows`, which are zeros, from the bottom up; what is stepped
// over stays as it is.  False if `packed` ends without saying so, or leaves the picture.
bool UnpackRuns(std::string_view packed, const BitmapHead& head, std::span<std::uint8_t> rows);

}  // namespace zdx::preview

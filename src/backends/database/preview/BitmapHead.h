// The head of a stored bitmap.
//
//   OFFSET  SIZE  MEANING                 OFFSET  SIZE  MEANING, in the old head
//      0      4   bytes of this head: 40     0      4   bytes of this head: 12
//      4      4   width                      4      2   width
//      8      4   height, below 0 if rows    6      2   height
//                 stand from the top down
//     12      2   planes: 1                  8      2   planes: 1
//     14      2   bits of a pixel           10      2   bits of a pixel
//     16      4   compression
//     20      4   bytes of the rows
//     24      8   pixels of a metre
//     32      4   colours in the table, 0 for all
//     36      4   colours that matter
//
// Little-endian.  A longer head begins as the one of 40 bytes does.  Behind a head of 40 bytes
// stand the three masks of a bitmap with masks, within a longer one they have the same place; the
// colour table comes next, of 4 bytes a colour, or 3 behind the old head, and then the rows.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

namespace zdx::preview {

struct BitmapHead {
  enum class Packing : std::uint32_t { kNone = 0, kRuns8 = 1, kRuns4 = 2, kMasks = 3 };

  std::uint32_t width = 0;
  std::uint32_t height = 0;
  bool topDown = false;
  std::uint16_t bits = 0;
  Packing packing = Packing::kNone;
  // Of 4 bytes each, where `packing` says that there are some.
  std::size_t masksAt = 0;
  std::size_t coloursAt = 0;
  std::size_t colours = 0;
  // Of one colour in the table.
  std::size_t colourSize = 0;
  std::size_t rowsAt = 0;
};

// The head at the begin of `bytes`, with places that are all within `bytes`; or why it can't be
// used, as a sentence.
std::variant<BitmapHead, const wchar_t*> ReadBitmapHead(std::string_view bytes);

}  // namespace zdx::preview

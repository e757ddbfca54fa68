#pragma once

#include <cstddef>

#include "support/dwg/Compression.h"

namespace dwg {

// How a file is written, whatever it tells.
struct Writing {
  Squeeze squeeze = Squeeze::Repeats;
  // Of AC1018 and later: how many bytes of the objects one page holds, 0 for as many as files
  // mostly have.  A multiple of 0x80.
  std::size_t objectPageSize = 0;
  // The most bytes of the object map in one of its pages.
  std::size_t mapPageSize = 2032;
  // Below AC1021: whether the count of a text includes a zero at its end, as most files have it.
  bool textsEndWithZero = true;
};

}  // namespace dwg

// The two forms in which pages are compressed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zdx::dwg {

struct Decompressed {
  std::string bytes;
  // Whether the stream was right from its begin to its end.  What came before the damage is kept.
  bool whole = false;
};

// Undo the compression of AC1018, AC1024 and later, and of AC1021.  The result has at most `most`
// bytes: a stream that gives more is damaged.
Decompressed DecompressPaged(std::string_view stream, std::size_t most);
Decompressed DecompressCoded(std::string_view stream, std::size_t most);

}  // namespace zdx::dwg

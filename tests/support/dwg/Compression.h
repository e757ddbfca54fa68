#pragma once

#include <string>
#include <string_view>

namespace dwg {

enum class Squeeze {
  // Copies where there are any.
  Repeats,
  // One run of bytes as they are.
  LiteralsOnly
};

// The compression of AC1018, AC1024 and later, for contents of four bytes and more.
std::string Compressed(std::string_view bytes, Squeeze squeeze);

// That of AC1021, for contents that aren't empty.
std::string CodedCompressed(std::string_view bytes, Squeeze squeeze);

}  // namespace dwg

#pragma once

#include <string>

namespace examples {

// A small picture of the plot on grass: a bitmap without its file header, and a PNG file.  Both are
// the same bytes whatever machine makes them.
std::string PreviewBitmap();
std::string PreviewPng();

}  // namespace examples

// The preview picture as a file of each kind.
#pragma once

#include <string>

#include "ThumbnailPicture.h"

namespace zdx {

enum class PictureKind { kPng, kBmp, kWmf };

// A picture of up to 8 bits a pixel gets a palette in PNG, others red, green and blue of 8 bits
// each.  The metafile gets the head that tells viewers its size, at 72 pixels an inch, unless it is
// larger than that head can say.  Empty if PNG fails.
std::string PictureFile(PictureKind kind, const ThumbnailPicture& picture);

}  // namespace zdx

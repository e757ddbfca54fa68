#include "backends/database/preview/ShowPicture.h"

#include "backends/database/preview/MetafilePicture.h"
#include "backends/database/preview/PngPicture.h"
#include "backends/database/preview/StoredBitmap.h"

namespace zdx::preview {

Showing ShowPicture(const model::StoredPicture& picture) {
  using Kind = model::StoredPicture::Kind;
  switch (picture.kind) {
    case Kind::kMetafile:
      return ShowMetafile(picture.bytes);
    case Kind::kPng:
      return ShowPng(picture.bytes);
    case Kind::kBitmap:
      break;
  }
  return ShowBitmap(picture.bytes);
}

}  // namespace zdx::preview

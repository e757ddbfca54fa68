// The preview picture of a drawing as a property.
#pragma once

#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Adds the picture as a metafile that draws it, behind a head of 12 bytes; nothing if the database
// has no file name, the file no preview, or no metafile could be made.
//
// Throws _com_error if a value can't be copied; the preview's bitmap, palette and metafile are not
// released then.
void CollectThumbnailProperty(std::vector<_PropData>& properties, ZnDbDatabase* database);

}  // namespace ZDXEngine

// What drawings call the parts of model documents, in each format.
#pragma once

#include <string_view>

namespace zdx::database {

// Of the root dictionary: a dictionary.
inline constexpr std::wstring_view kModelDocumentsKey = L"ZDX_MODELDOC";
// Of that dictionary: the free record of the embedded drawing, with the file's name and then its
// bytes in chunks.
inline constexpr std::wstring_view kEmbeddedDrawingKey = L"DRAWING";
inline constexpr int kLeafNameCode = 300;
inline constexpr int kFileChunkCode = 310;

}  // namespace zdx::database

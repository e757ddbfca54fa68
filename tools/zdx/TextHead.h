// The lines that each drawing's text begins with.
#pragma once

#include <string>
#include <string_view>

#include "ZDXEngine/Diagnostics.h"

namespace zdx {

// The name and "  Zent drawing, DXF (text), AC1032, code page ANSI_1252", as far as it is known;
// `drawingType` may be empty.
std::string TextHead(const std::wstring& path, std::wstring_view drawingType,
                     const ZDXEngine::Diagnostics& found);

}  // namespace zdx

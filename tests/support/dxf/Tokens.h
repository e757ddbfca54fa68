#pragma once

#include <string_view>

#include "support/drawing/Tokens.h"

namespace dxf {

// The words that only these files have.

inline constexpr std::string_view kBinarySentinel("AutoCAD Binary DXF\r\n\x1A\0", 22);

inline constexpr const char* kExtensionGroup = "{ACAD_XDICTIONARY";
inline constexpr const char* kReactorGroup = "{ACAD_REACTORS";
inline constexpr const char* kReferencesGroup = "{BLKREFS";
inline constexpr const char* kGroupEnd = "}";
inline constexpr const char* kMaintenanceVariable = "$ACADMAINTVER";
inline constexpr const char* kVersionVariable = "$ACADVER";

}  // namespace dxf

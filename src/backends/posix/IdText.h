// Identifiers as text.
#pragma once

#include <optional>
#include <string_view>

#include "ZDXEngine/Automation.h"

namespace zdx {

// The id that `text` gives in braced form, "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}", in any case;
// nullopt for any other text.
std::optional<GUID> IdFromText(std::wstring_view text);

}  // namespace zdx

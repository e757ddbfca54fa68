// The ids of property sets as text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ZDXEngine/Automation.h"

namespace zdx {

// Braced upper-case text, the form of _PropData::formatId.
std::wstring FormatIdText(const GUID& id);

// The id that `text` spells: 8-4-4-4-12 hexadecimal digits of either case, in braces or without.
std::optional<GUID> ParseFormatId(std::string_view text);

}  // namespace zdx

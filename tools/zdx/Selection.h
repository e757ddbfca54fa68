// The words of --select.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ZDXEngine/FilePropertyMgr.h"

namespace zdx {

using Selection = ZDXEngine::FilePropertyMgr::FilePropertiesSet;

// The selection that a comma-separated list of names stands for; "all" anywhere in it is
// AllProperties.  Nothing if a name isn't known or is empty: `unknown` is that name then.
std::optional<Selection> ParseSelection(std::string_view list, std::string& unknown);

// All names that a list may hold, as "summary, custom, ...".
std::string SelectionNames();

// Whether `selection` includes what `bit` stands for.
bool Includes(Selection selection, Selection bit);

// `selection` and what `bit` stands for besides.
Selection With(Selection selection, Selection bit);

}  // namespace zdx

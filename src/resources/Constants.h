// Texts that are needed by reference.
#pragma once

#include <string>

namespace ZDXEngine {

// They exist from the loading of the library on.
extern const std::wstring kEmptyText;
extern const std::wstring kLineFeedText;

}  // namespace ZDXEngine

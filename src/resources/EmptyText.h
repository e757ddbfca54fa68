// The empty text for where one is needed by reference.
#pragma once

#include <string>

namespace ZDXEngine {

// Lives until the process ends.
const std::wstring& EmptyText();

}  // namespace ZDXEngine

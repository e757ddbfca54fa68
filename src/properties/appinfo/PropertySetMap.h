// The property sets of a file by their format ids.
#pragma once

#include <cstring>
#include <map>
#include <string>

#include "ZDXEngine/Automation.h"

namespace ZDXEngine {

// The order of ids by their bytes as they lie in memory.
struct OrderInMemory {
  bool operator()(const GUID& a, const GUID& b) const {
    static_assert(sizeof(GUID) == 16);
    return std::memcmp(&a, &b, sizeof(GUID)) < 0;
  }
};

// The texts of the sets.
using PropertySetMap = std::map<GUID, std::wstring, OrderInMemory>;

}  // namespace ZDXEngine

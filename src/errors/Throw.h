// The mappings from a foreign failure to an exception of the tree, and texts without one.
#pragma once

#include <string>

#include "ZDXEngine/ErrorInfo.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "platform/zndb/Status.h"

namespace ZDXEngine {

// Returns if `status`, a status of the drawing library, is 0; otherwise throws NotFound,
// InvalidFormat, SecurityError or ReadError, with `path` in the sentence.
void ThrowForStatus(Zent::ErrorStatus status, const std::wstring& path);

// Throws the exception for one failure that the dependency-walking library reported on `path`.
[[noreturn]] void ThrowForCondition(const std::wstring& path,
                                    ZnDwgDepends::DwgDepends::ErrorCondition condition);

// Throws the exception for a vertical module that failed in `operation`: 0 listing, 1 updating.
[[noreturn]] void ThrowForVerticalFailure(const std::wstring& path, int operation);

// The text of resource `id` as it stands; empty if there is none.
std::wstring LoadResourceText(unsigned int id);

}  // namespace ZDXEngine

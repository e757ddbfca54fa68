// The system registry of a scripted world, with the dynamic linker in it.
#pragma once

#include <memory>

#include "platform/zndb/ZnRx.h"
#include "support/scripted/CallLog.h"

namespace scripted {

// The linker is of a class below ZnRxDynamicLinker.
std::unique_ptr<ZnRxDictionary> NewRegistry(CallLog& calls);

}  // namespace scripted

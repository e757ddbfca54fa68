// The system registry of a scripted world, with the dynamic linker in it.
#pragma once

#include <memory>

#include "platform/zndb/ZnRx.h"
#include "support/scripted/CallLog.h"

namespace scripted {

// The linker is of a class below ZnRxDynamicLinker; where a script makes its isA fail, it says that
// it is of another class and logs what it is asked to load all the same.
std::unique_ptr<ZnRxDictionary> NewRegistry(CallLog& calls);

}  // namespace scripted

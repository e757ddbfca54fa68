// The load-time entry point.
#pragma once

#include <cstdint>

#include "platform/os/Os.h"

namespace ZDXEngine {

// Takes a notification of the loader: records `module`, whatever `reason` says, and returns true.
// It does no engine work.
bool OnLoaderNotification(os::ModuleHandle module, std::uint32_t reason);

}  // namespace ZDXEngine

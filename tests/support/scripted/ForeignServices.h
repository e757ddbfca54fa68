// Host services of a component that isn't the engine.
#pragma once

#include <memory>

#include "platform/zndb/ZnDbHostApplicationServices.h"

namespace scripted {

std::unique_ptr<ZnDbHostApplicationServices> NewForeignServices();

}  // namespace scripted

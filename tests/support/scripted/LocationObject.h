// The location object that the stand-in hands out.
#pragma once

#include "support/scripted/OpenObjects.h"

namespace scripted {

ZnDbObject* NewLocation(OpenObjects& owner, const Location& location);

}  // namespace scripted

// Why a drawing can't be read, in the walker's numbers.
#pragma once

#include "backends/walker/Node.h"
#include "platform/zndb/Status.h"

namespace zdx::walker {

// Of a status of the drawing database, other than 0.
ErrorCondition ConditionOf(Zent::ErrorStatus status);

}  // namespace zdx::walker

// The records of blocks and the entities that the stand-in hands out.
#pragma once

#include "support/scripted/OpenObjects.h"

namespace scripted {

ZnDbObject* NewBlockRecord(OpenObjects& owner, const Record& record);
ZnDbObject* NewEntity(OpenObjects& owner, const Entity& entity);
// Null if it isn't known.
ZnRxClass* ClassOfEntity(const Entity& entity);

}  // namespace scripted

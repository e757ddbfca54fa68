// The iterators over what blocks hold; whoever asked deletes them.
#pragma once

#include <deque>

#include "platform/zndb/ZnDbBlocks.h"
#include "support/scripted/OpenObjects.h"

namespace scripted {

ZnDbBlockTableRecordIterator* NewEntityIterator(OpenObjects& objects, const Record& record);
ZnDbBlockReferenceIdIterator* NewReferenceIterator(OpenObjects& objects, const Record& record);
ZnDbObjectIterator* NewAttributeIterator(OpenObjects& objects, const Entity& reference);

}  // namespace scripted

// The records of blocks, and what is in them.
#pragma once

#include "properties/read/Iterators.h"
#include "properties/read/OpenObject.h"

namespace ZDXEngine {

using BlockRecord = ClosedObject<ZnDbBlockTableRecord>;

// The record on which `iterator` stands, with its id; null if it can't be had.
BlockRecord OpenCurrentBlock(const ZnDbSymbolTableIterator& iterator, ZnDbObjectId& id);

// The anonymous blocks that carry the variations of the block `id`; none if it isn't dynamic.
ZnDbObjectIdArray AnonymousCopies(ZnDbObjectId id);

// Hands each attribute definition of `record` that opens to `visit`, in stored order.
template <class Visit>
void ForEachDefinition(const ZnDbBlockTableRecord& record, Visit visit) {
  const auto entities = NewEntityIterator(record);
  if (entities == nullptr) return;
  for (; !entities->done(); entities->step(true, true)) {
    ZnDbEntity* opened = nullptr;
    if (entities->getEntity(opened, ZnDb::kForRead, false) != Zent::kOk) continue;
    const ClosedObject<ZnDbEntity> entity(opened);
    const ZnRxClass* const type = entity->isA();
    if (type == nullptr || !type->isDerivedFrom(ZnDbAttributeDefinition::desc())) continue;
    visit(static_cast<ZnDbAttributeDefinition&>(*entity));
  }
}

}  // namespace ZDXEngine

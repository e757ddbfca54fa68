#include "properties/read/BlockRecords.h"

namespace ZDXEngine {

BlockRecord OpenCurrentBlock(const ZnDbSymbolTableIterator& iterator, ZnDbObjectId& id) {
  if (iterator.getRecordId(id) != Zent::kOk) return nullptr;
  return BlockRecord(OpenForRead<ZnDbBlockTableRecord>(id));
}

// What is made to ask belongs to the drawing and isn't given back.
ZnDbObjectIdArray AnonymousCopies(ZnDbObjectId id) {
  const auto* const dynamic = new ZnDbDynBlockTableRecord(id);
  ZnDbObjectIdArray copies;
  if (dynamic == nullptr || !dynamic->isDynamicBlock()) return copies;
  if (dynamic->getAnonymousBlockIds(copies) != Zent::kOk) copies.clear();
  return copies;
}

}  // namespace ZDXEngine

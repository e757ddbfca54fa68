#include "references/OverlaidBlocks.h"

#include <memory>

#include "ZDXEngine/FileReferenceMgr.h"
#include "properties/read/Iterators.h"
#include "properties/read/OpenObject.h"

namespace ZDXEngine {
namespace {

// Shows the blocks to `look` in the table's order until that is satisfied or a block can't be
// opened.  True if it was satisfied.
template <class Look>
bool LookThroughBlocks(ZnDbDatabase* database, Look look) {
  if (database == nullptr) return false;
  ZnDbBlockTable* opened = nullptr;
  if (database->getSymbolTable(opened, ZnDb::kForRead) != Zent::kOk) return false;
  const ReleasedObject<ZnDbBlockTable> table(opened);
  const std::unique_ptr<ZnDbSymbolTableIterator> iterator = NewIterator(*table);
  if (iterator == nullptr) return false;
  for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
    ZnDbObjectId id;
    iterator->getRecordId(id);
    const ReleasedObject<ZnDbBlockTableRecord> record(OpenForRead<ZnDbBlockTableRecord>(id));
    if (record == nullptr) return false;
    if (look(*record)) return true;
  }
  return false;
}

std::uint64_t HandleOf(const ZnDbObject& object) { return object.objectId().nonForwardedHandle(); }

}  // namespace

std::unordered_set<std::uint64_t> OverlaidBlocks(ZnDbDatabase* database) {
  std::unordered_set<std::uint64_t> handles;
  LookThroughBlocks(database, [&handles](const ZnDbBlockTableRecord& record) {
    if (record.isFromOverlayReference()) handles.insert(HandleOf(record));
    return false;
  });
  return handles;
}

bool FileReferenceMgr::IsOverlay(ZnDbDatabase*& database, const std::uint64_t& refId) {
  return LookThroughBlocks(database, [refId](const ZnDbBlockTableRecord& record) {
    return HandleOf(record) == refId && record.isFromOverlayReference();
  });
}

}  // namespace ZDXEngine

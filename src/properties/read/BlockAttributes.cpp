#include "properties/read/BlockAttributes.h"

#include <memory>
#include <optional>
#include <unordered_set>
#include <utility>

#include "properties/read/AttributeProperties.h"
#include "properties/read/BlockFilters.h"
#include "properties/read/BlockRecords.h"
#include "properties/read/Iterators.h"
#include "properties/read/LibraryText.h"
#include "properties/read/OpenObject.h"

namespace ZDXEngine {
namespace {

using Reference = ClosedObject<ZnDbBlockReference>;

Reference OpenCurrent(const ZnDbBlockReferenceIdIterator& iterator, ZnDbObjectId& id) {
  if (iterator.getBlockReferenceId(id) != Zent::kOk) return nullptr;
  return Reference(OpenForRead<ZnDbBlockReference>(id));
}

// One walk through the records of a block table.
class Walk {
 public:
  Walk(std::vector<BlockFilterParam>& filters, std::vector<_PropData>& properties,
       ZnDbSymbolTableIterator& iterator)
      : filters_(filters), properties_(properties), iterator_(iterator) {}

  void Run() {
    while (!iterator_.done()) {
      ZnDbObjectId id;
      const BlockRecord record = OpenCurrentBlock(iterator_, id);
      if (record != nullptr) Visit(*record, id);
      iterator_.step(true, true);
    }
  }

 private:
  void Visit(const ZnDbBlockTableRecord& record, ZnDbObjectId id) {
    if (record.isLayout()) {
      seenLayouts_.insert(id.stub());
      return;
    }
    const std::optional<std::wstring> name = ReadText(record, &ZnDbSymbolTableRecord::getName);
    const BlockFilterParam* const filter = name ? FindFilter(filters_, name->c_str()) : nullptr;
    if (filter == nullptr) return;
    const GUID formatId = filter->formatId;
    AddConstants(record, formatId);
    if (!AddOneReference(record, formatId)) AddFromCopy(id, formatId);
  }

  void AddConstants(const ZnDbBlockTableRecord& record, const GUID& formatId) {
    ForEachDefinition(record, [&](ZnDbAttributeDefinition& definition) {
      if (!definition.isConstant()) return;
      AddConstantAttribute(properties_, &definition, formatId, filters_, true);
    });
  }

  // True if a reference was read, even one without attributes.
  bool AddOneReference(const ZnDbBlockTableRecord& record, const GUID& formatId) {
    ZnDbObjectId other;
    if (AddReferenceInLayout(record, formatId, other)) return true;
    return !other.isNull() && Add(Reference(OpenForRead<ZnDbBlockReference>(other)), formatId);
  }

  // The first reference in a layout that was met; `other` is the first that opened elsewhere.
  bool AddReferenceInLayout(const ZnDbBlockTableRecord& record, const GUID& formatId,
                            ZnDbObjectId& other) {
    const auto references = NewReferenceIterator(record);
    if (references == nullptr) return false;
    for (; references->position < references->count; ++references->position) {
      ZnDbObjectId id;
      Reference reference = OpenCurrent(*references, id);
      if (reference == nullptr) continue;
      const ZnDbObjectId owner = reference->ownerId();
      if (seenLayouts_.contains(owner.stub())) return Add(std::move(reference), formatId);
      if (other.isNull()) other = id;
    }
    return false;
  }

  // The table's iterator goes to the copy and comes back.
  void AddFromCopy(ZnDbObjectId id, const GUID& formatId) {
    const ZnDbObjectIdArray copies = AnonymousCopies(id);
    if (copies.empty() || iterator_.seek(copies.front()) != Zent::kOk) return;
    ZnDbObjectId found;
    const BlockRecord record = OpenCurrentBlock(iterator_, found);
    iterator_.seek(id);
    if (record != nullptr) AddFirstReference(*record, formatId);
  }

  // Only the first is tried.
  void AddFirstReference(const ZnDbBlockTableRecord& record, const GUID& formatId) {
    const auto references = NewReferenceIterator(record);
    if (references == nullptr || references->position >= references->count) return;
    ZnDbBlockReference* opened = nullptr;
    if (references->getBlockReference(opened, ZnDb::kForRead, false) != Zent::kOk) return;
    Add(Reference(opened), formatId);
  }

  // Closes the reference, which may be closed already.
  bool Add(Reference reference, const GUID& formatId) {
    if (reference == nullptr) return false;
    AddReferenceAttributes(properties_, reference.get(), formatId, filters_, true);
    return true;
  }

  std::vector<BlockFilterParam>& filters_;
  std::vector<_PropData>& properties_;
  ZnDbSymbolTableIterator& iterator_;
  // Those met so far.
  std::unordered_set<const ZnDbStub*> seenLayouts_;
};

}  // namespace

void GetBlockAttributes(std::vector<BlockFilterParam>& filters, std::vector<_PropData>& properties,
                        ZnDbDatabase* database) {
  if (database == nullptr) return;
  ZnDbBlockTable* opened = nullptr;
  if (database->getSymbolTable(opened, ZnDb::kForRead) != Zent::kOk) return;
  const ClosedObject<ZnDbBlockTable> table(opened);
  const auto iterator = NewIterator(*table);
  if (iterator != nullptr) Walk(filters, properties, *iterator).Run();
}

}  // namespace ZDXEngine

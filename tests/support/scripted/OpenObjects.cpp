#include "support/scripted/OpenObjects.h"

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

#include "platform/zndb/ZnDbBlocks.h"
#include "platform/zndb/ZnDbGeoData.h"
#include "support/scripted/BlockObjects.h"
#include "support/scripted/CaseFold.h"
#include "support/scripted/Iterators.h"
#include "support/scripted/LocationObject.h"
#include "support/scripted/Objects.h"

namespace scripted {
namespace {

class LinetypeObject : public RecordObject<ZnDbLinetypeTableRecord> {
 public:
  using RecordObject::RecordObject;
  Zent::ErrorStatus comments(ZnString& comments) const override {
    comments = record_.comments.c_str();
    return Record("comments").status;
  }
};

template <class Base>
class TableObject : public Object<Base> {
 public:
  TableObject(OpenObjects& owner, const Table& table) : Object<Base>(owner, table), table_(table) {}

  Zent::ErrorStatus getIdAt(const wchar_t* name, ZnDbObjectId& id, bool getErased) const override {
    const Outcome outcome = this->Record("getIdAt", Arguments(name, getErased));
    if (outcome.status != Zent::kOk) return outcome.status;
    for (const Record& record : table_.records) {
      if (record.erased && !getErased) continue;
      if (FoldCase(record.name) != FoldCase(name)) continue;
      id = IdOf(record);
      return Zent::kOk;
    }
    return Zent::kKeyNotFound;
  }

  Zent::ErrorStatus newIterator(ZnDbSymbolTableIterator*& iterator, bool atBeginning,
                                bool skipDeleted) const override {
    const Outcome outcome = this->Record("newIterator", Arguments(atBeginning, skipDeleted));
    iterator =
        outcome.null ? nullptr : NewTableIterator(this->Owner(), table_, atBeginning, skipDeleted);
    return outcome.status;
  }

 private:
  const Table& table_;
};

class DictionaryObject : public Object<ZnDbDictionary> {
 public:
  DictionaryObject(OpenObjects& owner, const Dictionary& dictionary)
      : Object(owner, dictionary), dictionary_(dictionary) {}

  Zent::ErrorStatus getAt(const wchar_t* name, ZnDbObjectId& id) const override {
    const Outcome outcome = Record("getAt", Arguments(name));
    if (outcome.status != Zent::kOk) return outcome.status;
    const auto entry = std::ranges::find_if(
        dictionary_.entries, [wanted = FoldCase(name)](const Dictionary::Entry& candidate) {
          return FoldCase(candidate.name) == wanted;
        });
    if (entry == dictionary_.entries.end()) return Zent::kKeyNotFound;
    id = IdOf(entry->object);
    return Zent::kOk;
  }

  ZnDbDictionaryIterator* newIterator() const override {
    if (Record("newIterator").null) return nullptr;
    return NewDictionaryIterator(Owner(), dictionary_);
  }

 private:
  const Dictionary& dictionary_;
};

class ProxyObject : public Object<ZnDbProxyObject> {
 public:
  ProxyObject(OpenObjects& owner, const PlainObject& object)
      : Object(owner, object), className_(object.className) {}

  const wchar_t* proxiedClassName() const override {
    Record("proxiedClassName");
    return className_.c_str();
  }

 private:
  std::wstring className_;
};

ZnRxClass* ClassOfRecord(TableKind kind) {
  switch (kind) {
    case TableKind::kLayer:
      return ZnDbLayerTableRecord::desc();
    case TableKind::kLinetype:
      return ZnDbLinetypeTableRecord::desc();
    case TableKind::kView:
      return ZnDbViewTableRecord::desc();
    case TableKind::kBlock:
      break;
  }
  return ZnDbBlockTableRecord::desc();
}

ZnRxClass* ClassOfTable(TableKind kind) {
  switch (kind) {
    case TableKind::kLayer:
      return ZnDbLayerTable::desc();
    case TableKind::kLinetype:
      return ZnDbLinetypeTable::desc();
    case TableKind::kView:
      return ZnDbViewTable::desc();
    case TableKind::kBlock:
      break;
  }
  return ZnDbBlockTable::desc();
}

ZnDbObject* NewRecord(OpenObjects& owner, const Record& record) {
  switch (record.kind) {
    case TableKind::kLayer:
      return new RecordObject<ZnDbLayerTableRecord>(owner, record);
    case TableKind::kLinetype:
      return new LinetypeObject(owner, record);
    case TableKind::kView:
      return new RecordObject<ZnDbViewTableRecord>(owner, record);
    case TableKind::kBlock:
      break;
  }
  return NewBlockRecord(owner, record);
}

ZnDbObject* NewTable(OpenObjects& owner, const Table& table) {
  switch (table.kind) {
    case TableKind::kLayer:
      return new TableObject<ZnDbLayerTable>(owner, table);
    case TableKind::kLinetype:
      return new TableObject<ZnDbLinetypeTable>(owner, table);
    case TableKind::kView:
      return new TableObject<ZnDbViewTable>(owner, table);
    case TableKind::kBlock:
      break;
  }
  return new TableObject<ZnDbBlockTable>(owner, table);
}

ZnDbObject* NewPlainObject(OpenObjects& owner, const PlainObject& object) {
  if (object.proxy) return new ProxyObject(owner, object);
  return new Object<ZnDbObject>(owner, object);
}

ZnDbObject* NewObject(OpenObjects& owner, const Node& node) {
  if (const auto* record = dynamic_cast<const Record*>(&node)) return NewRecord(owner, *record);
  if (const auto* table = dynamic_cast<const Table*>(&node)) return NewTable(owner, *table);
  if (const auto* dictionary = dynamic_cast<const Dictionary*>(&node)) {
    return new DictionaryObject(owner, *dictionary);
  }
  if (const auto* entity = dynamic_cast<const Entity*>(&node)) return NewEntity(owner, *entity);
  if (const auto* location = dynamic_cast<const Location*>(&node)) {
    return NewLocation(owner, *location);
  }
  return NewPlainObject(owner, dynamic_cast<const PlainObject&>(node));
}

}  // namespace

OpenObjects::~OpenObjects() {
  ending_ = true;
  for (ZnDbObject* object : objects_) delete object;
}

ZnDbObject* OpenObjects::Open(const Node& node) {
  ZnDbObject* const object = NewObject(*this, node);
  objects_.insert(object);
  ledger_.Acquire(object, node.label + ", open");
  return object;
}

void OpenObjects::Closed(const ZnDbObject* object, const Node& node) {
  if (node.mayCloseTwice && !ledger_.IsOut(object)) return;
  if (node.inDatabase) ledger_.Release(object, node.label + ", closed");
}

void OpenObjects::Deleted(ZnDbObject* object, const Node& node) {
  if (ending_) return;
  objects_.erase(object);
  calls_.Record(node.label, "delete");
  if (node.inDatabase) ledger_.Misuse("deleted, though its database owns it: " + node.label);
  ledger_.Release(object, node.label + ", deleted");
}

// The stub is opaque to everyone but its provider, for which it is the node.
ZnDbObjectId IdOf(const Node& node) {
  return ZnDbObjectId(reinterpret_cast<ZnDbStub*>(const_cast<Node*>(&node)));
}

ZnRxClass* ClassOf(const Node& node) {
  if (const auto* record = dynamic_cast<const Record*>(&node)) return ClassOfRecord(record->kind);
  if (const auto* table = dynamic_cast<const Table*>(&node)) return ClassOfTable(table->kind);
  if (dynamic_cast<const Dictionary*>(&node) != nullptr) return ZnDbDictionary::desc();
  if (const auto* entity = dynamic_cast<const Entity*>(&node)) return ClassOfEntity(*entity);
  if (dynamic_cast<const Location*>(&node) != nullptr) return ZnDbGeoData::desc();
  const auto& object = dynamic_cast<const PlainObject&>(node);
  if (object.proxy) return ZnDbProxyObject::desc();
  return object.hasClass ? DescriptorNamed(object.className, ZnDbObject::desc()) : nullptr;
}

ZnRxClass* DescriptorNamed(const std::wstring& name, const ZnRxClass* parent) {
  static std::map<std::pair<std::wstring, const ZnRxClass*>, std::unique_ptr<ZnRxClass>> known;
  std::unique_ptr<ZnRxClass>& descriptor = known[{name, parent}];
  if (descriptor == nullptr) descriptor = std::make_unique<ZnRxClass>(name, parent);
  return descriptor.get();
}

const Node* NodeOf(ZnDbObjectId id) { return reinterpret_cast<const Node*>(id.stub()); }

std::string LabelOf(ZnDbObjectId id) { return id.isNull() ? "null" : NodeOf(id)->label; }

}  // namespace scripted

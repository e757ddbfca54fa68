#include "backends/database/zndb/Objects.h"

#include <algorithm>

#include "backends/database/zndb/EmbeddedDatabase.h"
#include "base/CaseFold.h"
#include "platform/zndb/ZnDbBlocks.h"

namespace zdx::database {
namespace {

// Both directions end past the last record, where done() is true.
class TableIterator : public ZnDbSymbolTableIterator {
 public:
  TableIterator(EmbeddedDatabase* database, model::TableKind kind,
                const std::vector<model::ObjectKey>& records, bool atBeginning)
      : database_(database), kind_(kind), records_(&records) {
    start(atBeginning, true);
  }

  void start(bool atBeginning, bool /*skipDeleted*/) override {
    at_ = atBeginning || records_->empty() ? 0 : records_->size() - 1;
  }

  bool done() const override { return at_ >= records_->size(); }

  Zent::ErrorStatus getRecordId(ZnDbObjectId& id) const override {
    if (done()) return Zent::kNotApplicable;
    id = database_->RecordId(kind_, (*records_)[at_]);
    return Zent::kOk;
  }

  // Erased records aren't stored in a file, so there are none to skip.
  void step(bool forward, bool /*skipDeleted*/) override {
    if (done()) return;
    const bool leavesFront = !forward && at_ == 0;
    at_ = leavesFront ? records_->size() : at_ + (forward ? 1 : -std::size_t{1});
  }

  Zent::ErrorStatus seek(ZnDbObjectId id) override {
    const bool mayBeHere = !id.isNull() && id.stub()->owner == database_ && id.stub()->key;
    const auto found = mayBeHere ? std::find(records_->begin(), records_->end(), *id.stub()->key)
                                 : records_->end();
    if (found == records_->end()) return Zent::kKeyNotFound;
    at_ = static_cast<std::size_t>(found - records_->begin());
    return Zent::kOk;
  }

 private:
  EmbeddedDatabase* database_;
  model::TableKind kind_;
  const std::vector<model::ObjectKey>* records_;
  std::size_t at_ = 0;
};

// Keeps its own copy of the entries: it may outlive the dictionary's closing.
class DictionaryIterator : public ZnDbDictionaryIterator {
 public:
  explicit DictionaryIterator(std::vector<model::DictionaryEntry> entries)
      : entries_(std::move(entries)) {}

  const wchar_t* name() const override { return done() ? L"" : entries_[at_].key.c_str(); }
  bool done() const override { return at_ >= entries_.size(); }

  bool next() override {
    if (done()) return false;
    ++at_;
    return true;
  }

 private:
  std::vector<model::DictionaryEntry> entries_;
  std::size_t at_ = 0;
};

}  // namespace

Zent::ErrorStatus Give(const std::optional<std::wstring>& text, ZnString& out) {
  if (!text) return Zent::kNotApplicable;
  out = ZnString(text->c_str());
  return Zent::kOk;
}

template <class Base>
Zent::ErrorStatus EmbeddedRecord<Base>::getName(ZnString& name) const {
  const ZnDbStub& stub = *this->stub_;
  return Give(stub.owner->drawing()->RecordName(*stub.table, *stub.key), name);
}

Zent::ErrorStatus EmbeddedLinetype::comments(ZnString& comments) const {
  return Give(stub_->owner->drawing()->LinetypeComments(*stub_->key), comments);
}

template <class Base>
Zent::ErrorStatus EmbeddedTable<Base>::getIdAt(const wchar_t* name, ZnDbObjectId& id,
                                               bool /*getErased*/) const {
  EmbeddedDatabase* const database = this->stub_->owner;
  for (const model::ObjectKey record : database->drawing()->TableRecords(kind_)) {
    if (!database->drawing()->HasName(kind_, record, name)) continue;
    id = database->RecordId(kind_, record);
    return Zent::kOk;
  }
  return Zent::kKeyNotFound;
}

template <class Base>
Zent::ErrorStatus EmbeddedTable<Base>::newIterator(ZnDbSymbolTableIterator*& iterator,
                                                   bool atBeginning, bool /*skipDeleted*/) const {
  EmbeddedDatabase* const database = this->stub_->owner;
  iterator =
      new TableIterator(database, kind_, database->drawing()->TableRecords(kind_), atBeginning);
  return Zent::kOk;
}

Zent::ErrorStatus EmbeddedDictionary::getAt(const wchar_t* name, ZnDbObjectId& id) const {
  for (const model::DictionaryEntry& entry : entries_) {
    if (CompareIgnoringCase(entry.key, name) != 0) continue;
    id = stub_->owner->HandleId(entry.target);
    return Zent::kOk;
  }
  return Zent::kKeyNotFound;
}

ZnDbDictionaryIterator* EmbeddedDictionary::newIterator() const {
  return new DictionaryIterator(entries_);
}

template class EmbeddedRecord<ZnDbBlockTableRecord>;
template class EmbeddedRecord<ZnDbLayerTableRecord>;
template class EmbeddedRecord<ZnDbLinetypeTableRecord>;
template class EmbeddedRecord<ZnDbViewTableRecord>;
template class EmbeddedTable<ZnDbBlockTable>;
template class EmbeddedTable<ZnDbLayerTable>;
template class EmbeddedTable<ZnDbLinetypeTable>;
template class EmbeddedTable<ZnDbViewTable>;

}  // namespace zdx::database

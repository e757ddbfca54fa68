#include "support/scripted/Iterators.h"

namespace scripted {
namespace {

class TableIterator : public ZnDbSymbolTableIterator {
 public:
  TableIterator(OpenObjects& objects, const Table& table, bool atBeginning, bool skipDeleted)
      : objects_(objects), table_(table), label_(table.label + " iterator") {
    objects_.Books().Acquire(this, label_);
    GoToEnd(atBeginning, skipDeleted);
  }
  ~TableIterator() override {
    objects_.Log().Record(label_, "delete");
    objects_.Books().Release(this, label_);
  }

  void start(bool atBeginning, bool skipDeleted) override {
    objects_.Log().Record(label_, "start", Arguments(atBeginning, skipDeleted));
    GoToEnd(atBeginning, skipDeleted);
  }
  bool done() const override {
    objects_.Log().Record(label_, "done");
    return at_ < 0 || at_ >= Count();
  }
  // The id is there even where the status says failure: nobody who looks at it may take it then.
  Zent::ErrorStatus getRecordId(ZnDbObjectId& id) const override {
    id = IdOf(table_.records.at(static_cast<std::size_t>(at_)));
    return objects_.Log().Record(label_, "getRecordId").status;
  }
  void step(bool forward, bool skipDeleted) override {
    objects_.Log().Record(label_, "step", Arguments(forward, skipDeleted));
    at_ += forward ? 1 : -1;
    if (skipDeleted) SkipErased(forward ? 1 : -1);
  }
  Zent::ErrorStatus seek(ZnDbObjectId id) override {
    const Node* const wanted = NodeOf(id);
    const Outcome outcome = objects_.Log().Record(label_, "seek", LabelOf(id));
    if (outcome.status != Zent::kOk) return outcome.status;
    for (int i = 0; i < Count(); ++i) {
      if (&table_.records[static_cast<std::size_t>(i)] != wanted) continue;
      at_ = i;
      return Zent::kOk;
    }
    return Zent::kKeyNotFound;
  }

 private:
  int Count() const { return static_cast<int>(table_.records.size()); }
  void GoToEnd(bool atBeginning, bool skipDeleted) {
    at_ = atBeginning ? 0 : Count() - 1;
    if (skipDeleted) SkipErased(atBeginning ? 1 : -1);
  }
  void SkipErased(int direction) {
    while (at_ >= 0 && at_ < Count() && table_.records[static_cast<std::size_t>(at_)].erased) {
      at_ += direction;
    }
  }

  OpenObjects& objects_;
  const Table& table_;
  std::string label_;
  int at_ = 0;
};

class DictionaryIterator : public ZnDbDictionaryIterator {
 public:
  DictionaryIterator(OpenObjects& objects, const Dictionary& dictionary)
      : objects_(objects), dictionary_(dictionary), label_(dictionary.label + " iterator") {
    objects_.Books().Acquire(this, label_);
  }
  ~DictionaryIterator() override {
    objects_.Log().Record(label_, "delete");
    objects_.Books().Release(this, label_);
  }

  const wchar_t* name() const override {
    objects_.Log().Record(label_, "name");
    return dictionary_.entries.at(at_).name.c_str();
  }
  bool done() const override {
    objects_.Log().Record(label_, "done");
    return at_ >= dictionary_.entries.size();
  }
  bool next() override {
    objects_.Log().Record(label_, "next");
    return ++at_ < dictionary_.entries.size();
  }

 private:
  OpenObjects& objects_;
  const Dictionary& dictionary_;
  std::string label_;
  std::size_t at_ = 0;
};

}  // namespace

ZnDbSymbolTableIterator* NewTableIterator(OpenObjects& objects, const Table& table,
                                          bool atBeginning, bool skipDeleted) {
  return new TableIterator(objects, table, atBeginning, skipDeleted);
}

ZnDbDictionaryIterator* NewDictionaryIterator(OpenObjects& objects, const Dictionary& dictionary) {
  return new DictionaryIterator(objects, dictionary);
}

}  // namespace scripted

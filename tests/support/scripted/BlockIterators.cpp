#include "support/scripted/BlockIterators.h"

namespace scripted {
namespace {

// An iterator's place on the ledger and in the calls, over entities of a drawing.
class Visit {
 public:
  Visit(OpenObjects& objects, const std::deque<Entity>& entities, std::string label)
      : objects_(objects), entities_(entities), label_(std::move(label)) {
    objects_.Books().Acquire(this, label_);
  }
  ~Visit() {
    objects_.Log().Record(label_, "delete");
    objects_.Books().Release(this, label_);
  }
  Visit(const Visit&) = delete;
  Visit& operator=(const Visit&) = delete;

  Outcome Record(std::string_view operation, std::string_view arguments = {}) const {
    return objects_.Log().Record(label_, operation, arguments);
  }
  std::size_t Count() const { return entities_.size(); }
  const Entity& At(std::size_t place) const { return entities_.at(place); }

  // Opens the entity at `place` by an operation of the iterator's own.
  template <class T>
  Zent::ErrorStatus Open(T*& entity, std::size_t place, std::string_view operation,
                         std::string_view arguments) const {
    entity = nullptr;
    const Outcome outcome = Record(operation, arguments);
    if (outcome.status == Zent::kOk) entity = static_cast<T*>(objects_.Open(At(place)));
    return outcome.status;
  }

  // The id is there even where the status says failure: nobody may take it then.
  Zent::ErrorStatus GetId(ZnDbObjectId& id, std::size_t place, std::string_view operation) const {
    id = IdOf(At(place));
    return Record(operation).status;
  }

 private:
  OpenObjects& objects_;
  const std::deque<Entity>& entities_;
  std::string label_;
};

class EntityIterator : public ZnDbBlockTableRecordIterator {
 public:
  EntityIterator(OpenObjects& objects, const Record& record)
      : visit_(objects, record.entities, record.label + " iterator") {}

  bool done() const override {
    visit_.Record("done");
    return at_ >= visit_.Count();
  }
  void step(bool forward, bool skipDeleted) override {
    visit_.Record("step", Arguments(forward, skipDeleted));
    at_ += forward ? 1 : -std::size_t{1};
  }
  Zent::ErrorStatus getEntity(ZnDbEntity*& entity, int mode, bool openErased) const override {
    return visit_.Open(entity, at_, "getEntity", Arguments(mode, openErased));
  }
  Zent::ErrorStatus getEntityId(ZnDbObjectId& id) const override {
    return visit_.GetId(id, at_, "getEntityId");
  }

 private:
  Visit visit_;
  std::size_t at_ = 0;
};

class ReferenceIterator : public ZnDbBlockReferenceIdIterator {
 public:
  ReferenceIterator(OpenObjects& objects, const Record& record)
      : visit_(objects, record.references, record.label + " reference iterator") {
    count = static_cast<int>(visit_.Count());
  }

  Zent::ErrorStatus getBlockReferenceId(ZnDbObjectId& id) const override {
    return visit_.GetId(id, Place(), "getBlockReferenceId");
  }
  Zent::ErrorStatus getBlockReference(ZnDbBlockReference*& reference, int mode,
                                      bool openErased) const override {
    return visit_.Open(reference, Place(), "getBlockReference", Arguments(mode, openErased));
  }

 private:
  std::size_t Place() const { return static_cast<std::size_t>(position); }

  Visit visit_;
};

class AttributeIterator : public ZnDbObjectIterator {
 public:
  AttributeIterator(OpenObjects& objects, const Entity& reference)
      : visit_(objects, reference.attributes, reference.label + " iterator") {}

  bool done() const override {
    visit_.Record("done");
    return at_ >= visit_.Count();
  }
  void step(bool backward, bool skipDeleted) override {
    visit_.Record("step", Arguments(backward, skipDeleted));
    at_ += backward ? -std::size_t{1} : 1;
  }
  ZnDbObjectId objectId() const override {
    visit_.Record("objectId");
    return IdOf(visit_.At(at_));
  }

 private:
  Visit visit_;
  std::size_t at_ = 0;
};

}  // namespace

ZnDbBlockTableRecordIterator* NewEntityIterator(OpenObjects& objects, const Record& record) {
  return new EntityIterator(objects, record);
}

ZnDbBlockReferenceIdIterator* NewReferenceIterator(OpenObjects& objects, const Record& record) {
  return new ReferenceIterator(objects, record);
}

ZnDbObjectIterator* NewAttributeIterator(OpenObjects& objects, const Entity& reference) {
  return new AttributeIterator(objects, reference);
}

}  // namespace scripted

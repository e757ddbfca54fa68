#include "backends/database/zndb/BlockObjects.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "backends/database/zndb/EmbeddedDatabase.h"

namespace zdx::database {
namespace {

using Keys = std::vector<model::ObjectKey>;

// Erased entities aren't stored in a file, so none of the iterators has any to skip.
class EntityIterator : public ZnDbBlockTableRecordIterator {
 public:
  EntityIterator(EmbeddedDatabase* database, const Keys& entities, bool atBeginning)
      : database_(database),
        entities_(&entities),
        at_(atBeginning || entities.empty() ? 0 : entities.size() - 1) {}

  bool done() const override { return at_ >= entities_->size(); }

  void step(bool forward, bool /*skipDeleted*/) override {
    if (done()) return;
    const bool leavesFront = !forward && at_ == 0;
    at_ = leavesFront ? entities_->size() : at_ + (forward ? 1 : -std::size_t{1});
  }

  Zent::ErrorStatus getEntityId(ZnDbObjectId& id) const override {
    if (done()) return Zent::kNotApplicable;
    id = database_->EntityId((*entities_)[at_]);
    return Zent::kOk;
  }

  Zent::ErrorStatus getEntity(ZnDbEntity*& entity, int mode, bool openErased) const override {
    entity = nullptr;
    ZnDbObjectId id;
    if (const auto status = getEntityId(id); status != Zent::kOk) return status;
    return zndbOpenObject(entity, id, ZnDbEntity::desc(), mode, openErased);
  }

 private:
  EmbeddedDatabase* database_;
  const Keys* entities_;
  std::size_t at_;
};

class ReferenceIterator : public ZnDbBlockReferenceIdIterator {
 public:
  ReferenceIterator(EmbeddedDatabase* database, Keys references)
      : database_(database), references_(std::move(references)) {
    constexpr std::size_t kMost = std::numeric_limits<int>::max();
    count = static_cast<int>(std::min(references_.size(), kMost));
  }

  Zent::ErrorStatus getBlockReferenceId(ZnDbObjectId& id) const override {
    if (position < 0 || position >= count) return Zent::kNotApplicable;
    id = database_->EntityId(references_[static_cast<std::size_t>(position)]);
    return Zent::kOk;
  }

  Zent::ErrorStatus getBlockReference(ZnDbBlockReference*& reference, int mode,
                                      bool openErased) const override {
    reference = nullptr;
    ZnDbObjectId id;
    if (const auto status = getBlockReferenceId(id); status != Zent::kOk) return status;
    return zndbOpenObject(reference, id, ZnDbBlockReference::desc(), mode, openErased);
  }

 private:
  EmbeddedDatabase* database_;
  Keys references_;
};

class AttributeIterator : public ZnDbObjectIterator {
 public:
  AttributeIterator(EmbeddedDatabase* database, Keys attributes)
      : database_(database), attributes_(std::move(attributes)) {}

  bool done() const override { return at_ >= attributes_.size(); }

  void step(bool backward, bool /*skipDeleted*/) override {
    if (done()) return;
    const bool leavesFront = backward && at_ == 0;
    at_ = leavesFront ? attributes_.size() : at_ + (backward ? -std::size_t{1} : 1);
  }

  ZnDbObjectId objectId() const override {
    return done() ? ZnDbObjectId() : database_->EntityId(attributes_[at_]);
  }

 private:
  EmbeddedDatabase* database_;
  Keys attributes_;
  std::size_t at_ = 0;
};

}  // namespace

const Keys& EmbeddedBlockRecord::Entities() const {
  if (!entities_) entities_ = stub_->owner->drawing()->BlockEntities(*stub_->key);
  return *entities_;
}

bool EmbeddedBlockRecord::isFromOverlayReference() const {
  return stub_->owner->drawing()->IsOverlayBlock(*stub_->key);
}

bool EmbeddedBlockRecord::isLayout() const {
  return stub_->owner->drawing()->IsLayoutBlock(*stub_->key);
}

// Files tell this by a flag of the block, too, but not all writers set it.
bool EmbeddedBlockRecord::hasAttributeDefinitions() const {
  if (!hasDefinitions_) {
    const Keys& entities = Entities();
    hasDefinitions_ = std::any_of(entities.begin(), entities.end(), [&](model::ObjectKey entity) {
      return stub_->owner->drawing()->Describe(entity).kind ==
             model::ObjectDescription::Kind::kAttributeDefinition;
    });
  }
  return *hasDefinitions_;
}

Zent::ErrorStatus EmbeddedBlockRecord::newIterator(ZnDbBlockTableRecordIterator*& iterator,
                                                   bool atBeginning, bool /*skipDeleted*/) const {
  iterator = new EntityIterator(stub_->owner, Entities(), atBeginning);
  return Zent::kOk;
}

Zent::ErrorStatus EmbeddedBlockRecord::newBlockReferenceIdIterator(
    ZnDbBlockReferenceIdIterator*& iterator) const {
  iterator =
      new ReferenceIterator(stub_->owner, stub_->owner->drawing()->BlockReferences(*stub_->key));
  return Zent::kOk;
}

template <class Base>
ZnDbObjectId EmbeddedEntity<Base>::ownerId() const {
  EmbeddedDatabase* const database = this->stub_->owner;
  const auto block = database->drawing()->OwnerBlock(*this->stub_->key);
  return block ? database->RecordId(model::TableKind::kBlock, *block) : ZnDbObjectId();
}

Zent::ErrorStatus EmbeddedText::textString(ZnString& text) const {
  return Give(stub_->owner->drawing()->EntityText(*stub_->key), text);
}

Zent::ErrorStatus EmbeddedMText::text(ZnString& text) const {
  return Give(stub_->owner->drawing()->EntityText(*stub_->key), text);
}

Zent::ErrorStatus EmbeddedAttribute::textString(ZnString& text) const {
  return Give(attribute_.text, text);
}

Zent::ErrorStatus EmbeddedAttribute::tag(ZnString& tag) const { return Give(attribute_.tag, tag); }

Zent::ErrorStatus EmbeddedAttributeDefinition::textString(ZnString& text) const {
  return Give(attribute_.text, text);
}

Zent::ErrorStatus EmbeddedAttributeDefinition::tag(ZnString& tag) const {
  return Give(attribute_.tag, tag);
}

Zent::ErrorStatus EmbeddedAttributeDefinition::prompt(ZnString& prompt) const {
  return Give(attribute_.prompt, prompt);
}

const model::BlockReference& EmbeddedBlockReference::Contents() const {
  if (!contents_) contents_ = stub_->owner->drawing()->ReadBlockReference(*stub_->key);
  return *contents_;
}

ZnDbObjectId EmbeddedBlockReference::blockTableRecord() const {
  const std::optional<model::ObjectKey> block = Contents().block;
  return block ? stub_->owner->RecordId(model::TableKind::kBlock, *block) : ZnDbObjectId();
}

ZnDbObjectIterator* EmbeddedBlockReference::attributeIterator() const {
  return new AttributeIterator(stub_->owner, Contents().attributes);
}

Zent::ErrorStatus EmbeddedBlockReference::openAttribute(ZnDbAttribute*& attribute, ZnDbObjectId id,
                                                        int mode, bool openErased) const {
  return zndbOpenObject(attribute, id, ZnDbAttribute::desc(), mode, openErased);
}

template class EmbeddedEntity<ZnDbEntity>;
template class EmbeddedEntity<ZnDbText>;
template class EmbeddedEntity<ZnDbMText>;
template class EmbeddedEntity<ZnDbAttribute>;
template class EmbeddedEntity<ZnDbAttributeDefinition>;
template class EmbeddedEntity<ZnDbBlockReference>;

}  // namespace zdx::database

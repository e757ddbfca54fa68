// The records of blocks and the entities that are handed out.
#pragma once

#include <optional>
#include <vector>

#include "backends/database/zndb/Objects.h"
#include "platform/zndb/ZnDbBlocks.h"

namespace zdx::database {

class EmbeddedBlockRecord : public EmbeddedRecord<ZnDbBlockTableRecord> {
 public:
  using EmbeddedRecord::EmbeddedRecord;
  bool isLayout() const override;
  bool isFromOverlayReference() const override;
  bool hasAttributeDefinitions() const override;
  Zent::ErrorStatus newIterator(ZnDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                bool skipDeleted) const override;
  Zent::ErrorStatus newBlockReferenceIdIterator(
      ZnDbBlockReferenceIdIterator*& iterator) const override;

 private:
  const std::vector<model::ObjectKey>& Entities() const;

  // Kept, since a reference's attributes each ask for them.
  mutable std::optional<std::vector<model::ObjectKey>> entities_;
  mutable std::optional<bool> hasDefinitions_;
};

// What all entities share.
template <class Base>
class EmbeddedEntity : public Embedded<Base> {
 public:
  using Embedded<Base>::Embedded;
  ZnDbObjectId ownerId() const override;
};

// An entity of a class that has no operations of its own here.
class PlainEntity : public EmbeddedEntity<ZnDbEntity> {
 public:
  PlainEntity(ZnDbStub* stub, ZnRxClass* entityClass)
      : EmbeddedEntity(stub), entityClass_(entityClass) {}
  ZnRxClass* isA() const override { return entityClass_; }

 private:
  ZnRxClass* entityClass_;
};

class EmbeddedText : public EmbeddedEntity<ZnDbText> {
 public:
  using EmbeddedEntity::EmbeddedEntity;
  Zent::ErrorStatus textString(ZnString& text) const override;
};

class EmbeddedMText : public EmbeddedEntity<ZnDbMText> {
 public:
  using EmbeddedEntity::EmbeddedEntity;
  Zent::ErrorStatus text(ZnString& text) const override;
};

class EmbeddedAttribute : public EmbeddedEntity<ZnDbAttribute> {
 public:
  EmbeddedAttribute(ZnDbStub* stub, model::Attribute attribute)
      : EmbeddedEntity(stub), attribute_(std::move(attribute)) {}
  Zent::ErrorStatus textString(ZnString& text) const override;
  Zent::ErrorStatus tag(ZnString& tag) const override;
  bool isMTextAttribute() const override { return attribute_.isMultiLine; }

 private:
  model::Attribute attribute_;
};

class EmbeddedAttributeDefinition : public EmbeddedEntity<ZnDbAttributeDefinition> {
 public:
  EmbeddedAttributeDefinition(ZnDbStub* stub, model::Attribute attribute)
      : EmbeddedEntity(stub), attribute_(std::move(attribute)) {}
  Zent::ErrorStatus textString(ZnString& text) const override;
  Zent::ErrorStatus tag(ZnString& tag) const override;
  Zent::ErrorStatus prompt(ZnString& prompt) const override;
  bool isConstant() const override { return attribute_.isConstant; }

 private:
  model::Attribute attribute_;
};

class EmbeddedBlockReference : public EmbeddedEntity<ZnDbBlockReference> {
 public:
  using EmbeddedEntity::EmbeddedEntity;
  ZnDbObjectId blockTableRecord() const override;
  ZnDbObjectIterator* attributeIterator() const override;
  Zent::ErrorStatus openAttribute(ZnDbAttribute*& attribute, ZnDbObjectId id, int mode,
                                  bool openErased) const override;

 private:
  const model::BlockReference& Contents() const;

  // Kept, since its block is asked for again for each of its attributes.
  mutable std::optional<model::BlockReference> contents_;
};

}  // namespace zdx::database

#include "support/scripted/BlockObjects.h"

#include <algorithm>

#include "support/scripted/BlockIterators.h"
#include "support/scripted/Objects.h"

namespace scripted {
namespace {

class BlockRecord : public RecordObject<ZnDbBlockTableRecord> {
 public:
  using RecordObject::RecordObject;

  bool isFromOverlayReference() const override {
    Record("isFromOverlayReference");
    return record_.overlay;
  }
  bool isLayout() const override {
    Record("isLayout");
    return record_.layout;
  }
  // A script makes it answer false.
  bool hasAttributeDefinitions() const override {
    const Outcome outcome = Record("hasAttributeDefinitions");
    return !outcome.null &&
           std::ranges::count(record_.entities, EntityKind::kDefinition, &Entity::kind) != 0;
  }
  Zent::ErrorStatus newIterator(ZnDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                bool skipDeleted) const override {
    const Outcome outcome = Record("newIterator", Arguments(atBeginning, skipDeleted));
    iterator = outcome.null ? nullptr : NewEntityIterator(Owner(), record_);
    return outcome.status;
  }
  Zent::ErrorStatus newBlockReferenceIdIterator(
      ZnDbBlockReferenceIdIterator*& iterator) const override {
    const Outcome outcome = Record("newBlockReferenceIdIterator");
    iterator = outcome.null ? nullptr : NewReferenceIterator(Owner(), record_);
    return outcome.status;
  }
};

template <class Base>
class EntityObject : public Object<Base> {
 public:
  EntityObject(OpenObjects& owner, const Entity& entity)
      : Object<Base>(owner, entity), entity_(entity) {}

  ZnDbObjectId ownerId() const override {
    this->Record("ownerId");
    return entity_.owner == nullptr ? ZnDbObjectId() : IdOf(*entity_.owner);
  }

 protected:
  // The text is there even where the status says failure: nobody may take it then.
  Zent::ErrorStatus Give(ZnString& text, const std::wstring& value,
                         std::string_view operation) const {
    text = value.c_str();
    return this->Record(operation).status;
  }

  const Entity& entity_;
};

template <class Base>
class TextObject : public EntityObject<Base> {
 public:
  using EntityObject<Base>::EntityObject;
  Zent::ErrorStatus textString(ZnString& text) const override {
    return this->Give(text, this->entity_.text, "textString");
  }
};

class MTextObject : public EntityObject<ZnDbMText> {
 public:
  using EntityObject::EntityObject;
  Zent::ErrorStatus text(ZnString& text) const override { return Give(text, entity_.text, "text"); }
};

class AttributeObject : public TextObject<ZnDbAttribute> {
 public:
  using TextObject::TextObject;
  Zent::ErrorStatus tag(ZnString& tag) const override { return Give(tag, entity_.tag, "tag"); }
  bool isMTextAttribute() const override {
    Record("isMTextAttribute");
    return entity_.multiLine;
  }
};

class DefinitionObject : public TextObject<ZnDbAttributeDefinition> {
 public:
  using TextObject::TextObject;
  Zent::ErrorStatus tag(ZnString& tag) const override { return Give(tag, entity_.tag, "tag"); }
  Zent::ErrorStatus prompt(ZnString& prompt) const override {
    return Give(prompt, entity_.prompt, "prompt");
  }
  bool isConstant() const override {
    Record("isConstant");
    return entity_.constant;
  }
};

class ReferenceObject : public EntityObject<ZnDbBlockReference> {
 public:
  using EntityObject::EntityObject;
  ZnDbObjectId blockTableRecord() const override {
    Record("blockTableRecord");
    return entity_.block == nullptr ? ZnDbObjectId() : IdOf(*entity_.block);
  }
  ZnDbObjectIterator* attributeIterator() const override {
    return Record("attributeIterator").null ? nullptr : NewAttributeIterator(Owner(), entity_);
  }
  Zent::ErrorStatus openAttribute(ZnDbAttribute*& attribute, ZnDbObjectId id, int mode,
                                  bool openErased) const override {
    attribute = nullptr;
    const Outcome outcome = Record("openAttribute", Arguments(LabelOf(id), mode, openErased));
    if (outcome.status != Zent::kOk) return outcome.status;
    if (id.isNull()) return Zent::kUnknownHandle;
    attribute = static_cast<ZnDbAttribute*>(Owner().Open(*NodeOf(id)));
    return Zent::kOk;
  }
};

ZnRxClass* ClassOfKind(EntityKind kind) {
  switch (kind) {
    case EntityKind::kText:
      return ZnDbText::desc();
    case EntityKind::kMText:
      return ZnDbMText::desc();
    case EntityKind::kAttribute:
      return ZnDbAttribute::desc();
    case EntityKind::kDefinition:
      return ZnDbAttributeDefinition::desc();
    case EntityKind::kReference:
      return ZnDbBlockReference::desc();
    case EntityKind::kPlain:
      break;
  }
  return ZnDbEntity::desc();
}

}  // namespace

ZnDbObject* NewBlockRecord(OpenObjects& owner, const Record& record) {
  return new BlockRecord(owner, record);
}

ZnDbObject* NewEntity(OpenObjects& owner, const Entity& entity) {
  switch (entity.kind) {
    case EntityKind::kText:
      return new TextObject<ZnDbText>(owner, entity);
    case EntityKind::kMText:
      return new MTextObject(owner, entity);
    case EntityKind::kAttribute:
      return new AttributeObject(owner, entity);
    case EntityKind::kDefinition:
      return new DefinitionObject(owner, entity);
    case EntityKind::kReference:
      return new ReferenceObject(owner, entity);
    case EntityKind::kPlain:
      break;
  }
  return new EntityObject<ZnDbEntity>(owner, entity);
}

ZnRxClass* ClassOfEntity(const Entity& entity) {
  if (!entity.hasClass) return nullptr;
  ZnRxClass* const known = ClassOfKind(entity.kind);
  return entity.className.empty() ? known : DescriptorNamed(entity.className, known);
}

}  // namespace scripted

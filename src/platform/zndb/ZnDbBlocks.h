// Blocks: their records, what stands in them, and what refers to them.
//
// Iterators are deleted by whoever asked for them.  On failure the pointer that should be set is
// null.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/zndb/ZnDbObjects.h"

class ZnDbEntity : public ZnDbObject {
 public:
  static ZnRxClass* desc();
};

class ZnDbText : public ZnDbEntity {
 public:
  static ZnRxClass* desc();
  // The text as stored.  Attributes and definitions give that of their multi-line text if they have
  // one.
  virtual Zent::ErrorStatus textString(ZnString& text) const = 0;
};

class ZnDbMText : public ZnDbEntity {
 public:
  static ZnRxClass* desc();
  // The text with its codes of format, as stored.
  virtual Zent::ErrorStatus text(ZnString& text) const = 0;
};

// A value that a reference of a block carries.
class ZnDbAttribute : public ZnDbText {
 public:
  static ZnRxClass* desc();
  virtual Zent::ErrorStatus tag(ZnString& tag) const = 0;
  virtual bool isMTextAttribute() const = 0;
};

// What a block says of the attributes of its references.  The value of a constant one is its own
// text; references carry no attribute for it.
class ZnDbAttributeDefinition : public ZnDbText {
 public:
  static ZnRxClass* desc();
  virtual Zent::ErrorStatus tag(ZnString& tag) const = 0;
  virtual Zent::ErrorStatus prompt(ZnString& prompt) const = 0;
  virtual bool isConstant() const = 0;
};

class ZnDbObjectIterator {
 public:
  virtual ~ZnDbObjectIterator() = default;
  virtual bool done() const = 0;
  virtual void step(bool backward, bool skipDeleted) = 0;
  // Null past the end.
  virtual ZnDbObjectId objectId() const = 0;

 protected:
  ZnDbObjectIterator() = default;
  ZnDbObjectIterator(const ZnDbObjectIterator&) = default;
  ZnDbObjectIterator& operator=(const ZnDbObjectIterator&) = default;
};

// A place where a block is shown.
class ZnDbBlockReference : public ZnDbEntity {
 public:
  static ZnRxClass* desc();
  // The block's record; null if it isn't known.
  virtual ZnDbObjectId blockTableRecord() const = 0;
  // Over the reference's attributes in stored order.
  virtual ZnDbObjectIterator* attributeIterator() const = 0;
  virtual Zent::ErrorStatus openAttribute(ZnDbAttribute*& attribute, ZnDbObjectId id, int mode,
                                          bool openErased) const = 0;
};

// Over the entities of a block in stored order, attributes of references not among them.
class ZnDbBlockTableRecordIterator {
 public:
  virtual ~ZnDbBlockTableRecordIterator() = default;
  virtual bool done() const = 0;
  virtual void step(bool forward, bool skipDeleted) = 0;
  virtual Zent::ErrorStatus getEntity(ZnDbEntity*& entity, int mode, bool openErased) const = 0;
  virtual Zent::ErrorStatus getEntityId(ZnDbObjectId& id) const = 0;

 protected:
  ZnDbBlockTableRecordIterator() = default;
  ZnDbBlockTableRecordIterator(const ZnDbBlockTableRecordIterator&) = default;
  ZnDbBlockTableRecordIterator& operator=(const ZnDbBlockTableRecordIterator&) = default;
};

// Over the references of a block, wherever they stand.  Its user looks at the two numbers, and
// steps by adding 1 to the position.
class ZnDbBlockReferenceIdIterator {
 public:
  virtual ~ZnDbBlockReferenceIdIterator() = default;
  // These two tell of the reference at `position`, and leave it.
  virtual Zent::ErrorStatus getBlockReferenceId(ZnDbObjectId& id) const = 0;
  virtual Zent::ErrorStatus getBlockReference(ZnDbBlockReference*& reference, int mode,
                                              bool openErased) const = 0;

  int position = 0;
  int count = 0;

 protected:
  ZnDbBlockReferenceIdIterator() = default;
  ZnDbBlockReferenceIdIterator(const ZnDbBlockReferenceIdIterator&) = default;
  ZnDbBlockReferenceIdIterator& operator=(const ZnDbBlockReferenceIdIterator&) = default;
};

class ZnDbBlockTableRecord : public ZnDbSymbolTableRecord {
 public:
  static ZnRxClass* desc();
  // Whether it is model space or a layout's paper.
  virtual bool isLayout() const = 0;
  // Whether an overlaid reference to another drawing made it.
  virtual bool isFromOverlayReference() const = 0;
  virtual bool hasAttributeDefinitions() const = 0;
  virtual Zent::ErrorStatus newIterator(ZnDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                        bool skipDeleted) const = 0;
  virtual Zent::ErrorStatus newBlockReferenceIdIterator(
      ZnDbBlockReferenceIdIterator*& iterator) const = 0;
};

using ZnDbObjectIdArray = std::vector<ZnDbObjectId>;

// What a block's record says of it as a dynamic block.  Made by `new` alone; belongs to the drawing
// from then on and goes with it.
class ZnDbDynBlockTableRecord {
 public:
  // `id` may name any record.
  explicit ZnDbDynBlockTableRecord(ZnDbObjectId id);
  ZnDbDynBlockTableRecord(const ZnDbDynBlockTableRecord&) = delete;
  ZnDbDynBlockTableRecord& operator=(const ZnDbDynBlockTableRecord&) = delete;

  // The library's heap; null, and no construction, if it has no block.
  static void* operator new(std::size_t size) noexcept;
  static void operator delete(void* block) noexcept;

  bool isDynamicBlock() const;
  // The records of the anonymous blocks that carry its variations, in table order.
  Zent::ErrorStatus getAnonymousBlockIds(ZnDbObjectIdArray& ids) const;

 protected:
  ~ZnDbDynBlockTableRecord() = default;

 private:
  ZnDbObjectId id_;
};

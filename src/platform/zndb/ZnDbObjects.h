// The objects of a drawing that the engine opens.
//
// An object that was handed out belongs to its database: close() gives it back, may come twice, and
// may be forgotten.  The pointer stays valid as long as the database.  Only an object without an
// object id isn't in a database and is deleted by whoever holds it.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/zndb/Status.h"
#include "platform/zndb/ZnRx.h"
#include "platform/zndb/ZnString.h"

// What the library keeps about one object; providers define it.
class ZnDbStub;

// How an object is opened.
namespace ZnDb {
inline constexpr int kForRead = 0;
}  // namespace ZnDb

// Names an object of a database; null names none.
class ZnDbObjectId {
 public:
  ZnDbObjectId() = default;
  explicit ZnDbObjectId(ZnDbStub* stub) : stub_(stub) {}

  bool isNull() const { return stub_ == nullptr; }
  ZnDbStub* stub() const { return stub_; }
  // The object's handle in its own drawing; 0 for none.
  std::uint64_t nonForwardedHandle() const;
  friend bool operator==(const ZnDbObjectId&, const ZnDbObjectId&) = default;

 private:
  ZnDbStub* stub_ = nullptr;
};

class ZnDbObject : public ZnRxObject {
 public:
  static ZnRxClass* desc();

  // Null if the object isn't in a database.
  virtual ZnDbObjectId objectId() const = 0;
  // What it stands in: for an entity the record of its block.  Null where the library doesn't tell.
  virtual ZnDbObjectId ownerId() const = 0;
  virtual Zent::ErrorStatus close() = 0;
  // Checks that the object is open for read; it never returns otherwise.
  virtual void assertReadEnabled() const = 0;
};

// Stands for an object whose own class the library doesn't know.
class ZnDbProxyObject : public ZnDbObject {
 public:
  static ZnRxClass* desc();

  // The name of the class that the object stands for, valid as long as the object.
  virtual const wchar_t* proxiedClassName() const = 0;
};

class ZnDbSymbolTableRecord : public ZnDbObject {
 public:
  static ZnRxClass* desc();
  virtual Zent::ErrorStatus getName(ZnString& name) const = 0;
};

class ZnDbLayerTableRecord : public ZnDbSymbolTableRecord {
 public:
  static ZnRxClass* desc();
};

class ZnDbLinetypeTableRecord : public ZnDbSymbolTableRecord {
 public:
  static ZnRxClass* desc();
  virtual Zent::ErrorStatus comments(ZnString& comments) const = 0;
};

class ZnDbViewTableRecord : public ZnDbSymbolTableRecord {
 public:
  static ZnRxClass* desc();
};

// Walks over a table's records; deleted by its caller.
class ZnDbSymbolTableIterator {
 public:
  virtual ~ZnDbSymbolTableIterator() = default;
  // Goes to the first record, or to the last.
  virtual void start(bool atBeginning, bool skipDeleted) = 0;
  // True past the last record.
  virtual bool done() const = 0;
  virtual Zent::ErrorStatus getRecordId(ZnDbObjectId& id) const = 0;
  virtual void step(bool forward, bool skipDeleted) = 0;
  // Goes to the record `id`; on failure, if the table has no such record, it stays where it is.
  virtual Zent::ErrorStatus seek(ZnDbObjectId id) = 0;

 protected:
  ZnDbSymbolTableIterator() = default;
  ZnDbSymbolTableIterator(const ZnDbSymbolTableIterator&) = default;
  ZnDbSymbolTableIterator& operator=(const ZnDbSymbolTableIterator&) = default;
};

class ZnDbSymbolTable : public ZnDbObject {
 public:
  static ZnRxClass* desc();
  // 0 and its id if the table has a record `name`, compared without regard to case.
  virtual Zent::ErrorStatus getIdAt(const wchar_t* name, ZnDbObjectId& id,
                                    bool getErased) const = 0;
  // On success `iterator` stands on the first record if `atBeginning`; the caller deletes it.  On
  // failure it may be null or not, and the caller deletes it all the same.
  virtual Zent::ErrorStatus newIterator(ZnDbSymbolTableIterator*& iterator, bool atBeginning,
                                        bool skipDeleted) const = 0;
};

// The tables differ in their class alone, and each getter of ZnDbDatabase gives its own.
class ZnDbBlockTable : public ZnDbSymbolTable {
 public:
  static ZnRxClass* desc();
};

class ZnDbLayerTable : public ZnDbSymbolTable {
 public:
  static ZnRxClass* desc();
};

class ZnDbLinetypeTable : public ZnDbSymbolTable {
 public:
  static ZnRxClass* desc();
};

class ZnDbViewTable : public ZnDbSymbolTable {
 public:
  static ZnRxClass* desc();
};

// Walks over a dictionary's entries in stored order; deleted by its caller.
class ZnDbDictionaryIterator {
 public:
  virtual ~ZnDbDictionaryIterator() = default;
  // The entry's name, valid until the next step.
  virtual const wchar_t* name() const = 0;
  virtual bool done() const = 0;
  // False if there was nothing to step to.
  virtual bool next() = 0;

 protected:
  ZnDbDictionaryIterator() = default;
  ZnDbDictionaryIterator(const ZnDbDictionaryIterator&) = default;
  ZnDbDictionaryIterator& operator=(const ZnDbDictionaryIterator&) = default;
};

class ZnDbDictionary : public ZnDbObject {
 public:
  static ZnRxClass* desc();
  // 0 and its id if the entry exists, whether or not its object does.  Names are compared without
  // regard to case.
  virtual Zent::ErrorStatus getAt(const wchar_t* name, ZnDbObjectId& id) const = 0;
  // Null if there is none to be had; the caller deletes it.
  virtual ZnDbDictionaryIterator* newIterator() const = 0;
};

// Opens the object named by `id`.  Fails if there is no such object, or if `expected` isn't null
// and the object isn't of that class; `object` is null then.
Zent::ErrorStatus zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id, const ZnRxClass* expected,
                                 int mode, bool openErased);

// The same for an object of any class; `handle` is always null.
inline Zent::ErrorStatus zndbOpenObject(ZnDbObject*& object, ZnDbObjectId id, int mode,
                                        bool openErased, std::nullptr_t /*handle*/) {
  return zndbOpenObject(object, id, static_cast<const ZnRxClass*>(nullptr), mode, openErased);
}

// The same for an object of class T, whose descriptor is `expected`.
template <class T>
Zent::ErrorStatus zndbOpenObject(T*& object, ZnDbObjectId id, const ZnRxClass* expected, int mode,
                                 bool openErased) {
  ZnDbObject* opened = nullptr;
  const Zent::ErrorStatus status = zndbOpenObject(opened, id, expected, mode, openErased);
  object = status == Zent::kOk ? static_cast<T*>(opened) : nullptr;
  return status;
}

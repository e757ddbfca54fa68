// The objects that the database hands out.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "backends/database/model/Drawing.h"
#include "backends/database/zndb/Stub.h"
#include "platform/zndb/ZnDbObjects.h"

namespace zdx::database {

// Hands a text out; one that can't be read is a failure.
Zent::ErrorStatus Give(const std::optional<std::wstring>& text, ZnString& out);

// What all of them share.  They hold nothing that closing could give back.
template <class Base>
class Embedded : public Base {
 public:
  explicit Embedded(ZnDbStub* stub) : stub_(stub) {}

  ZnRxClass* isA() const override { return Base::desc(); }
  ZnDbObjectId objectId() const override { return ZnDbObjectId(stub_); }
  ZnDbObjectId ownerId() const override { return {}; }
  Zent::ErrorStatus close() override { return Zent::kOk; }
  // Objects of a database that is only read are always open for read.
  void assertReadEnabled() const override {}

 protected:
  ZnDbStub* stub_;
};

// An object of a class that has no operations of its own here.
class EmbeddedObject : public Embedded<ZnDbObject> {
 public:
  EmbeddedObject(ZnDbStub* stub, ZnRxClass* objectClass)
      : Embedded(stub), objectClass_(objectClass) {}
  ZnRxClass* isA() const override { return objectClass_; }

 private:
  ZnRxClass* objectClass_;
};

class EmbeddedProxy : public Embedded<ZnDbProxyObject> {
 public:
  EmbeddedProxy(ZnDbStub* stub, std::wstring className)
      : Embedded(stub), className_(std::move(className)) {}
  const wchar_t* proxiedClassName() const override { return className_.c_str(); }

 private:
  std::wstring className_;
};

// A record of a table, by the class that the table's records have.
template <class Base>
class EmbeddedRecord : public Embedded<Base> {
 public:
  using Embedded<Base>::Embedded;
  Zent::ErrorStatus getName(ZnString& name) const override;
};

class EmbeddedLinetype : public EmbeddedRecord<ZnDbLinetypeTableRecord> {
 public:
  using EmbeddedRecord::EmbeddedRecord;
  Zent::ErrorStatus comments(ZnString& comments) const override;
};

// A table, by its class.
template <class Base>
class EmbeddedTable : public Embedded<Base> {
 public:
  EmbeddedTable(ZnDbStub* stub, model::TableKind kind) : Embedded<Base>(stub), kind_(kind) {}
  Zent::ErrorStatus getIdAt(const wchar_t* name, ZnDbObjectId& id, bool getErased) const override;
  Zent::ErrorStatus newIterator(ZnDbSymbolTableIterator*& iterator, bool atBeginning,
                                bool skipDeleted) const override;

 private:
  model::TableKind kind_;
};

class EmbeddedDictionary : public Embedded<ZnDbDictionary> {
 public:
  EmbeddedDictionary(ZnDbStub* stub, std::vector<model::DictionaryEntry> entries)
      : Embedded(stub), entries_(std::move(entries)) {}
  Zent::ErrorStatus getAt(const wchar_t* name, ZnDbObjectId& id) const override;
  ZnDbDictionaryIterator* newIterator() const override;

 private:
  std::vector<model::DictionaryEntry> entries_;
};

}  // namespace zdx::database

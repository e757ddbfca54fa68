// What the objects have in common that the stand-in hands out.
#pragma once

#include "platform/zndb/ZnDbObjects.h"
#include "support/scripted/OpenObjects.h"

namespace scripted {

// What every object answers, over the class of the library's that it is of.
template <class Base>
class Object : public Base {
 public:
  Object(OpenObjects& owner, const Node& node) : owner_(owner), node_(node) {}
  ~Object() override { owner_.Deleted(this, node_); }

  ZnRxClass* isA() const override {
    Record("isA");
    return ClassOf(node_);
  }
  ZnDbObjectId objectId() const override {
    Record("objectId");
    return node_.inDatabase ? IdOf(node_) : ZnDbObjectId();
  }
  ZnDbObjectId ownerId() const override {
    Record("ownerId");
    return {};
  }
  Zent::ErrorStatus close() override {
    owner_.Closed(this, node_);
    return Record("close").status;
  }
  void assertReadEnabled() const override { Record("assertReadEnabled"); }

 protected:
  Outcome Record(std::string_view operation, std::string_view arguments = {}) const {
    return owner_.Log().Record(node_.label, operation, arguments);
  }
  OpenObjects& Owner() const { return owner_; }

 private:
  OpenObjects& owner_;
  const Node& node_;
};

template <class Base>
class RecordObject : public Object<Base> {
 public:
  RecordObject(OpenObjects& owner, const Record& record)
      : Object<Base>(owner, record), record_(record) {}

  // The text is there even where the status says failure: nobody may take it then.
  Zent::ErrorStatus getName(ZnString& name) const override {
    name = record_.name.c_str();
    return this->Record("getName").status;
  }

 protected:
  const Record& record_;
};

}  // namespace scripted

// The library's run-time classes: descriptors, the system registry and the dynamic linker.
#pragma once

#include <string>
#include <utility>

// Describes a class.  Descriptors are compared by address; each lives as long as its objects.
class ZnRxClass {
 public:
  ZnRxClass(std::wstring name, const ZnRxClass* parent) : name_(std::move(name)), parent_(parent) {}
  ZnRxClass(const ZnRxClass&) = delete;
  ZnRxClass& operator=(const ZnRxClass&) = delete;

  const wchar_t* name() const { return name_.c_str(); }
  // True for the class itself and for every class below `other`.
  bool isDerivedFrom(const ZnRxClass* other) const {
    const ZnRxClass* at = this;
    while (at != nullptr && at != other) at = at->parent_;
    return at != nullptr;
  }

 private:
  std::wstring name_;
  const ZnRxClass* parent_;
};

// The root of everything that knows its class.
class ZnRxObject {
 public:
  virtual ~ZnRxObject() = default;
  // The descriptor of the object's own class; may be null.
  virtual ZnRxClass* isA() const = 0;

  static ZnRxClass* desc();

 protected:
  ZnRxObject() = default;
  ZnRxObject(const ZnRxObject&) = default;
  ZnRxObject& operator=(const ZnRxObject&) = default;
};

// A dictionary of run-time objects.
class ZnRxDictionary : public ZnRxObject {
 public:
  // The entry `name`, or null.  The dictionary keeps it.
  virtual ZnRxObject* at(const wchar_t* name) const = 0;
};

// Loads and unloads object modules by name.
class ZnRxDynamicLinker : public ZnRxObject {
 public:
  static ZnRxClass* desc();

  // True if the module is loaded now.
  virtual bool loadModule(const wchar_t* name, bool printMessage, bool asCommand) = 0;
  virtual bool unloadModule(const wchar_t* name, bool asCommand) = 0;
};

// The system registry of the runtime.  Lives until the process ends.
ZnRxDictionary* znrxSysRegistry();

// The runtime's registry and its dynamic linker.
#pragma once

#include "platform/zndb/ZnRx.h"

namespace zdx::database {

// Knows the object modules whose work the database does itself, and leaves all others to the
// system.
class DynamicLinker : public ZnRxDynamicLinker {
 public:
  ZnRxClass* isA() const override { return desc(); }
  // An object module that is compiled in needs no loading.
  bool loadModule(const wchar_t* name, bool printMessage, bool asCommand) override;
  bool unloadModule(const wchar_t* name, bool asCommand) override;
};

class RuntimeRegistry : public ZnRxDictionary {
 public:
  ZnRxClass* isA() const override { return desc(); }
  // Holds the entry "DynamicLinker".
  ZnRxObject* at(const wchar_t* name) const override;

 private:
  mutable DynamicLinker linker_;
};

}  // namespace zdx::database

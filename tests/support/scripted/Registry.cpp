#include "support/scripted/Registry.h"

namespace scripted {
namespace {

class Linker : public ZnRxDynamicLinker {
 public:
  explicit Linker(CallLog& calls) : calls_(calls) {}

  ZnRxClass* isA() const override {
    static ZnRxClass linker(L"Linker", ZnRxDynamicLinker::desc());
    static ZnRxClass somethingElse(L"SomethingElse", ZnRxObject::desc());
    return calls_.Record("linker", "isA").status == Zent::kOk ? &linker : &somethingElse;
  }
  bool loadModule(const wchar_t* name, bool printMessage, bool asCommand) override {
    return !calls_.Record("", "loadModule", Arguments(name, printMessage, asCommand)).null;
  }
  bool unloadModule(const wchar_t* name, bool asCommand) override {
    return !calls_.Record("", "unloadModule", Arguments(name, asCommand)).null;
  }

 private:
  CallLog& calls_;
};

class Registry : public ZnRxDictionary {
 public:
  explicit Registry(CallLog& calls) : calls_(calls), linker_(calls) {}

  ZnRxClass* isA() const override { return ZnRxObject::desc(); }
  ZnRxObject* at(const wchar_t* name) const override {
    calls_.Record("", "at", Arguments(name));
    return std::wstring(name) == L"DynamicLinker" ? &linker_ : nullptr;
  }

 private:
  CallLog& calls_;
  mutable Linker linker_;
};

}  // namespace

std::unique_ptr<ZnRxDictionary> NewRegistry(CallLog& calls) {
  return std::make_unique<Registry>(calls);
}

}  // namespace scripted

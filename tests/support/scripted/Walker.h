// The dependency-walking library of a scripted world.
#pragma once

#include "platform/econvey/ZnDwgDepends.h"
#include "support/scripted/CallLog.h"

namespace scripted {

class Walker : public ZnDwgDepends::Provider {
 public:
  explicit Walker(CallLog& calls) : calls_(calls) {}

  // A script that gives null makes them answer false.
  bool initializeEconveyEngine() override {
    return !calls_.Record("", "initializeEconveyEngine").null;
  }
  bool unInitializeEconveyEngine() override {
    return !calls_.Record("", "unInitializeEconveyEngine").null;
  }
  std::unique_ptr<ZnDwgDepends::DependsBody> createDepends(const wchar_t* /*path*/,
                                                           ZnDwgDepends::DwgDependsSettings,
                                                           const wchar_t*, const wchar_t*, bool,
                                                           bool) override {
    return nullptr;
  }

 private:
  CallLog& calls_;
};

}  // namespace scripted

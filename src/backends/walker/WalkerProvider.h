// The dependency-walking library's own implementation.
#pragma once

#include "platform/econvey/ZnDwgDepends.h"

namespace zdx {

// Starting and stopping succeed and do nothing: the walker is compiled in and keeps no state for
// the process.
class WalkerProvider : public ZnDwgDepends::Provider {
 public:
  bool initializeEconveyEngine() override;
  bool unInitializeEconveyEngine() override;
  std::unique_ptr<ZnDwgDepends::DependsBody> createDepends(
      const wchar_t* path, ZnDwgDepends::DwgDependsSettings settings, const wchar_t* reserved1,
      const wchar_t* reserved2, bool directOnly, bool keepsDatabase) override;
};

}  // namespace zdx

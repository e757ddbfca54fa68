// Who is told what an application-information block holds.
#pragma once

#include <cstdint>
#include <string>

#include "ZDXEngine/Automation.h"

namespace ZDXEngine {

// Never deleted through this class.
class ZnHsAppInfoNotifier {
 public:
  // Told once, before the first entry.
  virtual void OnEntryCount(std::uint32_t count) = 0;
  // Told once for each entry, in the file's order.
  virtual void OnPropertySet(const GUID& formatId, const std::wstring& text) = 0;

 protected:
  ~ZnHsAppInfoNotifier() = default;
};

}  // namespace ZDXEngine

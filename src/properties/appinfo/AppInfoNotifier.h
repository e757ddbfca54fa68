// Gathers the property sets that a walk tells.
#pragma once

#include "properties/appinfo/PropertySetMap.h"
#include "properties/appinfo/ZnHsAppInfoNotifier.h"

namespace ZDXEngine {

class AppInfoNotifier final : public ZnHsAppInfoNotifier {
 public:
  // Fills `sets`, which must outlive this.
  explicit AppInfoNotifier(PropertySetMap* sets) : sets_(sets) {}

  void OnEntryCount(std::uint32_t count) override;
  // The first text of a format id stays.
  void OnPropertySet(const GUID& formatId, const std::wstring& text) override;

 private:
  PropertySetMap* sets_;
};

}  // namespace ZDXEngine

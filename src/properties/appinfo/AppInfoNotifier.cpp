#include "properties/appinfo/AppInfoNotifier.h"

namespace ZDXEngine {

void AppInfoNotifier::OnEntryCount(std::uint32_t /*count*/) {}

void AppInfoNotifier::OnPropertySet(const GUID& formatId, const std::wstring& text) {
  sets_->emplace(formatId, text);
}

}  // namespace ZDXEngine

#include "host/DynamicLinker.h"

namespace ZDXEngine {

ZnRxDynamicLinker* DynamicLinker() {
  ZnRxObject* const entry = znrxSysRegistry()->at(L"DynamicLinker");
  const bool isLinker = entry->isA()->isDerivedFrom(ZnRxDynamicLinker::desc());
  return isLinker ? static_cast<ZnRxDynamicLinker*>(entry) : nullptr;
}

}  // namespace ZDXEngine

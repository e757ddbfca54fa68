#include "ZDXEngine/PropData.h"

#include <utility>

#include "platform/os/Os.h"

namespace ZDXEngine {

_PropData::_PropData() { os::VariantInit(&value); }

_PropData::_PropData(const _PropData& other)
    : formatId(other.formatId), name(other.name), typeCode(other.typeCode) {
  os::VariantInit(&value);
  const HRESULT result = os::VariantCopy(&value, &other.value);
  if (result < 0) throw _com_error(result);
}

_PropData& _PropData::operator=(const _PropData& other) {
  _PropData copy(other);
  formatId.swap(copy.formatId);
  name.swap(copy.name);
  std::swap(value, copy.value);
  std::swap(typeCode, copy.typeCode);
  return *this;
}

_PropData::~_PropData() { os::VariantClear(&value); }

}  // namespace ZDXEngine

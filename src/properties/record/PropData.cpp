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

_PropData::_PropData(_PropData&& other) noexcept
    : formatId(std::move(other.formatId)), name(std::move(other.name)), typeCode(other.typeCode) {
  os::VariantInit(&value);
  std::swap(value, other.value);
}

_PropData& _PropData::operator=(const _PropData& other) { return *this = _PropData(other); }

_PropData& _PropData::operator=(_PropData&& other) noexcept {
  formatId.swap(other.formatId);
  name.swap(other.name);
  std::swap(value, other.value);
  std::swap(typeCode, other.typeCode);
  return *this;
}

_PropData::~_PropData() { os::VariantClear(&value); }

}  // namespace ZDXEngine

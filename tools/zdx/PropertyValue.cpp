#include "PropertyValue.h"

namespace zdx {

namespace {

std::span<const std::uint8_t> BytesOf(const SAFEARRAY& array) {
  return {static_cast<const std::uint8_t*>(array.pvData), array.rgsabound[0].cElements};
}

}  // namespace

PropertyValue ValueOf(const ZDXEngine::_PropData& property) {
  const VARIANT& value = property.value;
  switch (value.vt) {
    case VT_BOOL:
      return value.boolVal != VARIANT_FALSE;
    case VT_R8:
      return value.dblVal;
    case VT_BSTR:
      if (value.bstrVal == nullptr) return {};
      return std::wstring_view(value.bstrVal);
    case VT_ARRAY | VT_UI1:
      if (value.parray == nullptr) return {};
      return BytesOf(*value.parray);
    default:
      return {};
  }
}

}  // namespace zdx

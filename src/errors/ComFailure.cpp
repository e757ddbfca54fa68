#include "errors/ComFailure.h"

#include "platform/os/Os.h"

namespace ZDXEngine {

VARIANT MakeTextVariant(const wchar_t* text) {
  VARIANT variant = {};
  variant.vt = VT_BSTR;
  variant.bstrVal = os::SysAllocString(text);
  if (variant.bstrVal == nullptr && text != nullptr) throw _com_error(E_OUTOFMEMORY);
  return variant;
}

}  // namespace ZDXEngine

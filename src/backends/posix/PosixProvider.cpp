#include "backends/posix/PosixProvider.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <optional>

#include "backends/posix/Bstr.h"
#include "backends/posix/IdText.h"
#include "backends/posix/ModuleStrings.h"

namespace zdx {
namespace {

constexpr VARTYPE kByteArray = VT_ARRAY | VT_UI1;

bool IsKnownType(VARTYPE type) {
  return type == VT_EMPTY || type == VT_BOOL || type == VT_R8 || type == VT_BSTR ||
         type == kByteArray;
}

void FreeArray(SAFEARRAY* array) {
  if (array == nullptr) return;
  std::free(array->pvData);
  std::free(array);
}

SAFEARRAY* CopyArray(const SAFEARRAY& source) {
  const std::size_t bytes = source.rgsabound[0].cElements;
  auto* const copy = static_cast<SAFEARRAY*>(std::malloc(sizeof(SAFEARRAY)));
  // An empty array has a block too, so that null means that memory ran out.
  void* const data = std::malloc(bytes == 0 ? 1 : bytes);
  if (copy == nullptr || data == nullptr) {
    std::free(copy);
    std::free(data);
    return nullptr;
  }
  if (bytes != 0) std::memcpy(data, source.pvData, bytes);
  *copy = source;
  copy->cLocks = 0;
  copy->pvData = data;
  return copy;
}

// Each copies a value that isn't null into `target`, which is of no type yet.
HRESULT CopyText(VARIANT& target, BSTR text) {
  target.bstrVal = NewBstr(text, BstrLength(text));
  return target.bstrVal == nullptr ? E_OUTOFMEMORY : S_OK;
}

HRESULT CopyBytes(VARIANT& target, const SAFEARRAY& array) {
  if (array.cDims != 1 || array.cbElements != 1) return DISP_E_BADVARTYPE;
  target.parray = CopyArray(array);
  return target.parray == nullptr ? E_OUTOFMEMORY : S_OK;
}

}  // namespace

void PosixProvider::VariantInit(VARIANT* variant) { *variant = VARIANT(); }

HRESULT PosixProvider::VariantCopy(VARIANT* target, const VARIANT* source) {
  if (target == source) return S_OK;
  const HRESULT cleared = VariantClear(target);
  VariantInit(target);
  if (cleared < 0 || !IsKnownType(source->vt)) return DISP_E_BADVARTYPE;
  VARIANT copy = *source;
  HRESULT result = S_OK;
  if (source->vt == VT_BSTR && source->bstrVal != nullptr) {
    result = CopyText(copy, source->bstrVal);
  } else if (source->vt == kByteArray && source->parray != nullptr) {
    result = CopyBytes(copy, *source->parray);
  }
  if (result >= 0) *target = copy;
  return result;
}

HRESULT PosixProvider::VariantClear(VARIANT* variant) {
  if (!IsKnownType(variant->vt)) return DISP_E_BADVARTYPE;
  if (variant->vt == VT_BSTR) FreeBstr(variant->bstrVal);
  if (variant->vt == kByteArray) FreeArray(variant->parray);
  VariantInit(variant);
  return S_OK;
}

BSTR PosixProvider::SysAllocString(const wchar_t* text) {
  return text == nullptr ? nullptr : NewBstr(text, std::wcslen(text));
}

HRESULT PosixProvider::InitVariantFromBuffer(const void* buffer, std::uint32_t size,
                                             VARIANT* variant) {
  VariantInit(variant);
  const SAFEARRAY source = {1, 0, 1, 0, const_cast<void*>(buffer), {{size, 0}}};
  SAFEARRAY* const array = CopyArray(source);
  if (array == nullptr) return E_OUTOFMEMORY;
  variant->vt = kByteArray;
  variant->parray = array;
  return S_OK;
}

HRESULT PosixProvider::CLSIDFromString(const wchar_t* text, GUID* id) {
  const std::optional<GUID> read = text == nullptr ? std::nullopt : IdFromText(text);
  if (!read) return CO_E_CLASSSTRING;
  *id = *read;
  return S_OK;
}

HRESULT PosixProvider::CoInitialize(void* /*reserved*/) { return S_OK; }

void PosixProvider::CoUninitialize() {}

void PosixProvider::OutputDebugStringW(const wchar_t* /*text*/) {}

int PosixProvider::FreeLibrary(os::ModuleHandle module) { return HasModuleStrings(module) ? 1 : 0; }

}  // namespace zdx

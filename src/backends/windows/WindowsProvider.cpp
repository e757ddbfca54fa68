#include "backends/windows/WindowsProvider.h"

#include <windows.h>
// After windows.h.
#include <objbase.h>
#include <oleauto.h>
#include <propvarutil.h>

namespace zdx {

void WindowsProvider::VariantInit(VARIANT* variant) { ::VariantInit(variant); }

HRESULT WindowsProvider::VariantCopy(VARIANT* target, const VARIANT* source) {
  return ::VariantCopy(target, const_cast<VARIANT*>(source));
}

HRESULT WindowsProvider::VariantClear(VARIANT* variant) { return ::VariantClear(variant); }

BSTR WindowsProvider::SysAllocString(const wchar_t* text) { return ::SysAllocString(text); }

HRESULT WindowsProvider::InitVariantFromBuffer(const void* buffer, std::uint32_t size,
                                               VARIANT* variant) {
  return ::InitVariantFromBuffer(buffer, size, variant);
}

HRESULT WindowsProvider::CLSIDFromString(const wchar_t* text, GUID* id) {
  return ::CLSIDFromString(text, id);
}

HRESULT WindowsProvider::CoInitialize(void* reserved) { return ::CoInitialize(reserved); }

void WindowsProvider::CoUninitialize() { ::CoUninitialize(); }

void WindowsProvider::OutputDebugStringW(const wchar_t* text) { ::OutputDebugStringW(text); }

int WindowsProvider::FreeLibrary(os::ModuleHandle module) {
  return ::FreeLibrary(static_cast<HMODULE>(module));
}

}  // namespace zdx

#include "platform/os/Os.h"

#include "platform/ProviderSlot.h"

namespace os {
namespace {

constinit platform::ProviderSlot<Provider> slot;

}  // namespace

Provider* InstallProvider(Provider* provider) { return slot.Install(provider); }

void VariantInit(VARIANT* variant) { slot.Get().VariantInit(variant); }
HRESULT VariantCopy(VARIANT* target, const VARIANT* source) {
  return slot.Get().VariantCopy(target, source);
}
HRESULT VariantClear(VARIANT* variant) { return slot.Get().VariantClear(variant); }
BSTR SysAllocString(const wchar_t* text) { return slot.Get().SysAllocString(text); }
HRESULT InitVariantFromBuffer(const void* buffer, std::uint32_t size, VARIANT* variant) {
  return slot.Get().InitVariantFromBuffer(buffer, size, variant);
}
HRESULT CLSIDFromString(const wchar_t* text, GUID* id) {
  return slot.Get().CLSIDFromString(text, id);
}
HRESULT CoInitialize(void* reserved) { return slot.Get().CoInitialize(reserved); }
void CoUninitialize() { slot.Get().CoUninitialize(); }
void OutputDebugStringW(const wchar_t* text) { slot.Get().OutputDebugStringW(text); }
int FreeLibrary(ModuleHandle module) { return slot.Get().FreeLibrary(module); }

}  // namespace os

// The operating system's operations on Windows: each is the system's call of the same name.
#pragma once

#include "platform/os/Os.h"

namespace zdx {

class WindowsProvider : public os::Provider {
 public:
  void VariantInit(VARIANT* variant) override;
  HRESULT VariantCopy(VARIANT* target, const VARIANT* source) override;
  HRESULT VariantClear(VARIANT* variant) override;
  BSTR SysAllocString(const wchar_t* text) override;
  HRESULT InitVariantFromBuffer(const void* buffer, std::uint32_t size, VARIANT* variant) override;
  HRESULT CLSIDFromString(const wchar_t* text, GUID* id) override;
  HRESULT CoInitialize(void* reserved) override;
  void CoUninitialize() override;
  void OutputDebugStringW(const wchar_t* text) override;
  int FreeLibrary(os::ModuleHandle module) override;
};

}  // namespace zdx

// The operating system of a scripted world: real variants and texts, all of them counted.
#pragma once

#include "platform/os/Os.h"
#include "support/scripted/CallLog.h"
#include "support/scripted/Ledger.h"

namespace scripted {

class System : public os::Provider {
 public:
  System(CallLog& calls, Ledger& ledger) : calls_(calls), ledger_(ledger) {}

  void VariantInit(VARIANT* variant) override;
  // A script makes it fail with an HRESULT, before anything is copied.
  HRESULT VariantCopy(VARIANT* target, const VARIANT* source) override;
  HRESULT VariantClear(VARIANT* variant) override;
  // A script makes it give null.
  BSTR SysAllocString(const wchar_t* text) override;
  // A script makes each of the two fail with an HRESULT.
  HRESULT InitVariantFromBuffer(const void* buffer, std::uint32_t size, VARIANT* variant) override;
  HRESULT CLSIDFromString(const wchar_t* text, GUID* id) override;
  HRESULT CoInitialize(void* reserved) override;
  void CoUninitialize() override;
  void OutputDebugStringW(const wchar_t* text) override;
  int FreeLibrary(os::ModuleHandle module) override;

 private:
  void Release(VARIANT* variant);
  HRESULT Duplicate(VARIANT* target, const VARIANT& source);
  // A text of `bytes` bytes on the ledger.
  BSTR NewText(const void* characters, std::size_t bytes);
  SAFEARRAY* NewArray(const SAFEARRAY& source);

  CallLog& calls_;
  Ledger& ledger_;
};

}  // namespace scripted

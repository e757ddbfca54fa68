// The operating system's operations on POSIX systems.
#pragma once

#include "platform/os/Os.h"

namespace zdx {

// Texts, arrays and their bytes are blocks of malloc.  Variants of other types than VT_EMPTY,
// VT_BOOL, VT_R8, VT_BSTR and VT_ARRAY | VT_UI1 are refused with DISP_E_BADVARTYPE.
class PosixProvider : public os::Provider {
 public:
  void VariantInit(VARIANT* variant) override;
  // Texts are copied by their stored length, so a terminator within survives.
  HRESULT VariantCopy(VARIANT* target, const VARIANT* source) override;
  // A variant of another type is left as it is: nobody knows what it holds.
  HRESULT VariantClear(VARIANT* variant) override;
  BSTR SysAllocString(const wchar_t* text) override;
  HRESULT InitVariantFromBuffer(const void* buffer, std::uint32_t size, VARIANT* variant) override;
  HRESULT CLSIDFromString(const wchar_t* text, GUID* id) override;
  // There is no COM here: starting it succeeds and stopping it does nothing.
  HRESULT CoInitialize(void* reserved) override;
  void CoUninitialize() override;
  // Nobody watches a debug output here, and a library doesn't write to its client's terminal.
  void OutputDebugStringW(const wchar_t* text) override;
  // Accepts modules that registered their strings, and leaves them to the loader, which owns them.
  int FreeLibrary(os::ModuleHandle module) override;
};

}  // namespace zdx

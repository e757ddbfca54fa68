// The operating system's operations that the engine calls, with Windows' names and meanings.
#pragma once

#include <cstdint>

#include "ZDXEngine/Automation.h"

namespace os {

// A loaded module; null for none.
using ModuleHandle = void*;

// Makes `variant` empty without looking at what it held.
void VariantInit(VARIANT* variant);
// Clears `target` and makes it a copy of `source`, which keeps its value: texts and arrays are
// duplicated, and a null text may become an empty one.  S_OK, or a failure, which leaves a target
// empty that was empty: E_OUTOFMEMORY, DISP_E_BADVARTYPE.
HRESULT VariantCopy(VARIANT* target, const VARIANT* source);
// Releases what `variant` holds and makes it empty.
HRESULT VariantClear(VARIANT* variant);
// A new text with the characters of `text` up to its terminator; null if `text` is null or memory
// ran out, which the caller tells apart by its argument.  VariantClear releases it.
BSTR SysAllocString(const wchar_t* text);
// Makes `variant`, whatever it held, an array of bytes (VT_ARRAY | VT_UI1) with a copy of the
// `size` bytes at `buffer`.  S_OK, or a failure that leaves it empty.
HRESULT InitVariantFromBuffer(const void* buffer, std::uint32_t size, VARIANT* variant);
// Sets `id` to what `text` says in braced form, "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}", in any
// case.  S_OK, or CO_E_CLASSSTRING for any other text.
HRESULT CLSIDFromString(const wchar_t* text, GUID* id);
// Starts COM on this thread; `reserved` is null.
HRESULT CoInitialize(void* reserved);
// Stops COM on this thread.
void CoUninitialize();
// Sends `text` to whoever watches the debug output, if anyone does.
void OutputDebugStringW(const wchar_t* text);
// Gives back one reference to `module`.  Nonzero on success.
int FreeLibrary(ModuleHandle module);

// What stands behind the operations above; each virtual operation is the one of the same name.
class Provider {
 public:
  virtual ~Provider() = default;
  virtual void VariantInit(VARIANT* variant) = 0;
  virtual HRESULT VariantCopy(VARIANT* target, const VARIANT* source) = 0;
  virtual HRESULT VariantClear(VARIANT* variant) = 0;
  virtual BSTR SysAllocString(const wchar_t* text) = 0;
  virtual HRESULT InitVariantFromBuffer(const void* buffer, std::uint32_t size,
                                        VARIANT* variant) = 0;
  virtual HRESULT CLSIDFromString(const wchar_t* text, GUID* id) = 0;
  virtual HRESULT CoInitialize(void* reserved) = 0;
  virtual void CoUninitialize() = 0;
  virtual void OutputDebugStringW(const wchar_t* text) = 0;
  virtual int FreeLibrary(ModuleHandle module) = 0;
};

// Makes `provider`, which must live until the process ends, answer from now on.  Returns the one
// before it, or null.
Provider* InstallProvider(Provider* provider);

}  // namespace os

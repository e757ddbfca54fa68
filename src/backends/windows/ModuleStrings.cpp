#include <windows.h>

#include "backends/System.h"

namespace zdx {

std::wstring LoadModuleString(os::ModuleHandle module, unsigned int id) {
  // Without room for a copy the call gives the place of the text itself, which has no terminator.
  const wchar_t* text = nullptr;
  const int length =
      ::LoadStringW(static_cast<HINSTANCE>(module), id, reinterpret_cast<wchar_t*>(&text), 0);
  return length > 0 ? std::wstring(text, static_cast<std::size_t>(length)) : std::wstring();
}

}  // namespace zdx

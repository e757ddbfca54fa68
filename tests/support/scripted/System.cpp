#include "support/scripted/System.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <string>
#include <string_view>

namespace scripted {
namespace {

using LengthPrefix = std::uint32_t;
constexpr std::size_t kPrefixSize = sizeof(LengthPrefix);

std::size_t ByteLength(const wchar_t* text) {
  LengthPrefix length = 0;
  std::memcpy(&length, reinterpret_cast<const char*>(text) - kPrefixSize, kPrefixSize);
  return length;
}

constexpr VARTYPE kByteArray = VT_ARRAY | VT_UI1;

bool IsKnown(VARTYPE type) {
  return type == VT_EMPTY || type == VT_R8 || type == VT_BOOL || type == VT_BSTR ||
         type == kByteArray;
}

std::string Words(const VARIANT& variant) {
  switch (variant.vt) {
    case VT_EMPTY:
      return "empty";
    case VT_BSTR:
      return "text " + Shown(variant.bstrVal);
    case VT_R8:
      return "number";
    case VT_BOOL:
      return "flag";
    case kByteArray:
      return "bytes";
    default:
      return "type " + std::to_string(variant.vt);
  }
}

constexpr std::wstring_view kIdShape = L"{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}";

bool ScanId(const std::wstring& text, GUID& id) {
  if (text.size() != kIdShape.size()) return false;
  std::string digits;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isDigit =
        std::wstring_view(L"0123456789abcdefABCDEF").find(text[i]) != std::wstring_view::npos;
    if (kIdShape[i] == L'x' ? !isDigit : text[i] != kIdShape[i]) return false;
    if (isDigit) digits.push_back(static_cast<char>(text[i]));
  }
  const auto number = [&digits](std::size_t at, std::size_t size) {
    return std::stoul(digits.substr(at, size), nullptr, 16);
  };
  id.Data1 = static_cast<std::uint32_t>(number(0, 8));
  id.Data2 = static_cast<std::uint16_t>(number(8, 4));
  id.Data3 = static_cast<std::uint16_t>(number(12, 4));
  for (std::size_t i = 0; i < 8; ++i) {
    id.Data4[i] = static_cast<std::uint8_t>(number(16 + 2 * i, 2));
  }
  return true;
}

}  // namespace

void System::VariantInit(VARIANT* variant) {
  calls_.Record("", "VariantInit");
  *variant = VARIANT{};
}

HRESULT System::VariantCopy(VARIANT* target, const VARIANT* source) {
  const Outcome outcome = calls_.Record("", "VariantCopy", Words(*source));
  if (!IsKnown(target->vt)) return DISP_E_BADVARTYPE;
  Release(target);
  if (outcome.status != 0) return outcome.status;
  return Duplicate(target, *source);
}

HRESULT System::VariantClear(VARIANT* variant) {
  calls_.Record("", "VariantClear", Words(*variant));
  if (!IsKnown(variant->vt)) return DISP_E_BADVARTYPE;
  Release(variant);
  return S_OK;
}

BSTR System::SysAllocString(const wchar_t* text) {
  if (calls_.Record("", "SysAllocString", Arguments(text)).null || text == nullptr) return nullptr;
  return NewText(text, std::wcslen(text) * sizeof(wchar_t));
}

HRESULT System::InitVariantFromBuffer(const void* buffer, std::uint32_t size, VARIANT* variant) {
  const Outcome outcome = calls_.Record("", "InitVariantFromBuffer", Arguments(size));
  *variant = VARIANT{};
  if (outcome.status != 0) return outcome.status;
  const SAFEARRAY source{1, 0, 1, 0, const_cast<void*>(buffer), {{size, 0}}};
  variant->vt = kByteArray;
  variant->parray = NewArray(source);
  return S_OK;
}

HRESULT System::CLSIDFromString(const wchar_t* text, GUID* id) {
  const Outcome outcome = calls_.Record("", "CLSIDFromString", Arguments(text));
  const bool read = text != nullptr && ScanId(text, *id);
  // A failed call leaves an id that nobody may take.
  if (outcome.status != 0) return outcome.status;
  return read ? S_OK : CO_E_CLASSSTRING;
}

HRESULT System::CoInitialize(void* reserved) {
  return calls_.Record("", "CoInitialize", reserved == nullptr ? "null" : "reserved").status;
}

void System::CoUninitialize() { calls_.Record("", "CoUninitialize"); }

void System::OutputDebugStringW(const wchar_t* text) {
  calls_.Record("", "OutputDebugStringW", Arguments(text));
}

int System::FreeLibrary(os::ModuleHandle module) {
  return calls_.Record("", "FreeLibrary", Arguments(reinterpret_cast<std::uintptr_t>(module)))
                     .status == 0
             ? 1
             : 0;
}

void System::Release(VARIANT* variant) {
  if (variant->vt == VT_BSTR && variant->bstrVal != nullptr) {
    if (ledger_.Release(variant->bstrVal, "text")) {
      std::free(reinterpret_cast<char*>(variant->bstrVal) - kPrefixSize);
    }
  }
  if (variant->vt == kByteArray && variant->parray != nullptr) {
    if (ledger_.Release(variant->parray, "bytes")) {
      std::free(variant->parray->pvData);
      delete variant->parray;
    }
  }
  *variant = VARIANT{};
}

HRESULT System::Duplicate(VARIANT* target, const VARIANT& source) {
  if (!IsKnown(source.vt)) return DISP_E_BADVARTYPE;
  *target = source;
  if (source.vt == VT_BSTR && source.bstrVal != nullptr) {
    target->bstrVal = NewText(source.bstrVal, ByteLength(source.bstrVal));
  }
  if (source.vt == kByteArray && source.parray != nullptr) {
    target->parray = NewArray(*source.parray);
  }
  return S_OK;
}

BSTR System::NewText(const void* characters, std::size_t bytes) {
  char* const block = static_cast<char*>(std::malloc(kPrefixSize + bytes + sizeof(wchar_t)));
  const auto length = static_cast<LengthPrefix>(bytes);
  std::memcpy(block, &length, kPrefixSize);
  std::memcpy(block + kPrefixSize, characters, bytes);
  std::memset(block + kPrefixSize + bytes, 0, sizeof(wchar_t));
  const BSTR text = reinterpret_cast<BSTR>(block + kPrefixSize);
  ledger_.Acquire(text, "text " + Shown(text));
  return text;
}

SAFEARRAY* System::NewArray(const SAFEARRAY& source) {
  SAFEARRAY* const array = new SAFEARRAY(source);
  const std::size_t bytes = std::size_t{source.cbElements} * source.rgsabound[0].cElements;
  array->pvData = std::malloc(bytes == 0 ? 1 : bytes);
  if (bytes != 0) std::memcpy(array->pvData, source.pvData, bytes);
  ledger_.Acquire(array, "bytes");
  return array;
}

}  // namespace scripted

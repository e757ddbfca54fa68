// The COM automation types that cross the public interface.
//
// On Windows these are the system's own.  Elsewhere this header gives the same names with the same
// meaning and, for 64-bit systems, the same layout, so that a client reads a property's value in
// the same words on every system.  Only what the interface uses is here.  A client that has these
// names from another header already, meaning the same, defines ZDXENGINE_HAS_AUTOMATION_TYPES.
#pragma once

#include "ZDXEngine/Export.h"

#if defined(_WIN32)

#include <comdef.h>
#include <oaidl.h>
#if __has_include(<atlexcept.h>)
#include <atlexcept.h>
#define ZDXENGINE_HAS_ATL_EXCEPTION
#endif

#elif !defined(ZDXENGINE_HAS_AUTOMATION_TYPES)

#include <cstdint>

// A 128-bit identifier in its memory order: the first three fields are native-endian integers, the
// last eight bytes stand in the order in which they are printed.
struct GUID {
  std::uint32_t Data1;
  std::uint16_t Data2;
  std::uint16_t Data3;
  std::uint8_t Data4[8];

  friend bool operator==(const GUID&, const GUID&) = default;
};

// A COM status: negative is failure.
using HRESULT = std::int32_t;

inline constexpr HRESULT S_OK = 0;
inline constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005u);
inline constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000Eu);
inline constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057u);
inline constexpr HRESULT CO_E_CLASSSTRING = static_cast<HRESULT>(0x800401F3u);
inline constexpr HRESULT DISP_E_BADVARTYPE = static_cast<HRESULT>(0x80020008u);

// A text whose length in bytes, terminator not counted, stands in the four bytes before its first
// character.  The pointer may be null, which means an empty text.
using BSTR = wchar_t*;

using VARTYPE = std::uint16_t;
using VARIANT_BOOL = std::int16_t;

inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

// Type codes of a VARIANT; VT_ARRAY is combined with an element type.
inline constexpr VARTYPE VT_EMPTY = 0;
inline constexpr VARTYPE VT_R8 = 5;
inline constexpr VARTYPE VT_BSTR = 8;
inline constexpr VARTYPE VT_BOOL = 11;
inline constexpr VARTYPE VT_UI1 = 17;
inline constexpr VARTYPE VT_ARRAY = 0x2000;

struct SAFEARRAYBOUND {
  std::uint32_t cElements;
  std::int32_t lLbound;
};

// A one-dimensional array; `pvData` holds `rgsabound[0].cElements` elements of `cbElements` bytes.
struct SAFEARRAY {
  std::uint16_t cDims;
  std::uint16_t fFeatures;
  std::uint32_t cbElements;
  std::uint32_t cLocks;
  void* pvData;
  SAFEARRAYBOUND rgsabound[1];
};

// A tagged value of 24 bytes; `vt` tells which member holds.
struct VARIANT {
  VARTYPE vt;
  std::uint16_t wReserved1;
  std::uint16_t wReserved2;
  std::uint16_t wReserved3;
  union {
    double dblVal;         // VT_R8
    VARIANT_BOOL boolVal;  // VT_BOOL
    BSTR bstrVal;          // VT_BSTR
    SAFEARRAY* parray;     // VT_ARRAY | VT_UI1
    struct {
      void* first;
      void* second;
    } pair;  // gives the union its size of two pointers
  };
};
static_assert(sizeof(void*) != 8 || sizeof(VARIANT) == 24);

// Carries the HRESULT of a failed automation call as an exception.
class ZDXENGINE_API _com_error {
 public:
  explicit _com_error(HRESULT error) noexcept : error_(error) {}
  virtual ~_com_error() = default;
  _com_error(const _com_error&) = default;
  _com_error& operator=(const _com_error&) = default;

  HRESULT Error() const noexcept { return error_; }

 private:
  HRESULT error_;
};

#endif

#if !defined(ZDXENGINE_HAS_ATL_EXCEPTION) && !defined(ZDXENGINE_HAS_AUTOMATION_TYPES)

// The free compilers lack this one.
namespace ATL {

// Carries an HRESULT as an exception; converts to it.
class ZDXENGINE_API CAtlException {
 public:
  CAtlException() noexcept = default;
  CAtlException(HRESULT hr) noexcept : m_hr(hr) {}    // NOLINT(google-explicit-constructor)
  operator HRESULT() const noexcept { return m_hr; }  // NOLINT(google-explicit-constructor)

  HRESULT m_hr = static_cast<HRESULT>(0x80004005u);  // E_FAIL
};

}  // namespace ATL

#endif

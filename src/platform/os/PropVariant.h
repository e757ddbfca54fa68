// The types in which a property of a stored property set is asked for and told, with Windows' names
// and meanings.
#pragma once

#include "ZDXEngine/Automation.h"

#if defined(_WIN32)

#include <propidl.h>

#else

#include <cstdint>

// Further type codes, beside those of a VARIANT.
inline constexpr VARTYPE VT_INT = 22;
inline constexpr VARTYPE VT_UINT = 23;
inline constexpr VARTYPE VT_LPWSTR = 31;
inline constexpr VARTYPE VT_FILETIME = 64;

// Tenths of microseconds since the begin of 1601.
struct FILETIME {
  std::uint32_t dwLowDateTime;
  std::uint32_t dwHighDateTime;
};

// A tagged value of 24 bytes; `vt` tells which member holds.
struct PROPVARIANT {
  VARTYPE vt;
  std::uint16_t wReserved1;
  std::uint16_t wReserved2;
  std::uint16_t wReserved3;
  union {
    double dblVal;          // VT_R8
    std::int32_t intVal;    // VT_INT
    std::uint32_t uintVal;  // VT_UINT
    VARIANT_BOOL boolVal;   // VT_BOOL
    FILETIME filetime;      // VT_FILETIME
    wchar_t* pwszVal;       // VT_LPWSTR
    struct {
      std::uint32_t count;
      void* elements;
    } counted;  // gives the union its size of two pointers
  };
};
static_assert(sizeof(void*) != 8 || sizeof(PROPVARIANT) == 24);

using PROPID = std::uint32_t;

// Which member of a PROPSPEC holds.
inline constexpr std::uint32_t PRSPEC_LPWSTR = 0;
inline constexpr std::uint32_t PRSPEC_PROPID = 1;

// A property by its number or by its name, which the holder doesn't own.
struct PROPSPEC {
  std::uint32_t ulKind;
  union {
    PROPID propid;    // PRSPEC_PROPID
    wchar_t* lpwstr;  // any other kind
  };
};

#endif

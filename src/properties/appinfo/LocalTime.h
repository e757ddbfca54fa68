// Local time as a number.
#pragma once

#include <cstdint>

namespace ZDXEngine {

// Seconds since the begin of 1970 in universal time, for a moment told in local time, whose summer
// time the system works out.  Throws ATL::CAtlException: for E_FAIL if a field is out of range
// (year from 1970 on, month and day from 1 on, second up to 59), for E_INVALIDARG if the system has
// no number for the moment or it lies before 1970 in universal time.
std::int64_t MakeLocalTime(std::int32_t year, std::int32_t month, std::int32_t day,
                           std::int32_t hour, std::int32_t minute, std::int32_t second);

}  // namespace ZDXEngine

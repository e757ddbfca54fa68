#include "properties/appinfo/LocalTime.h"

#include <ctime>

#include "ZDXEngine/Automation.h"

namespace ZDXEngine {
namespace {

constexpr std::int32_t kFirstYear = 1970;
constexpr std::int32_t kTmFirstYear = 1900;

bool IsWithin(std::int32_t value, std::int32_t low, std::int32_t high) {
  return value >= low && value <= high;
}

}  // namespace

std::int64_t MakeLocalTime(std::int32_t year, std::int32_t month, std::int32_t day,
                           std::int32_t hour, std::int32_t minute, std::int32_t second) {
  if (year < kFirstYear || !IsWithin(month, 1, 12) || !IsWithin(day, 1, 31) ||
      !IsWithin(hour, 0, 23) || !IsWithin(minute, 0, 59) || !IsWithin(second, 0, 59)) {
    throw ATL::CAtlException(E_FAIL);
  }
  std::tm fields = {};
  fields.tm_year = year - kTmFirstYear;
  fields.tm_mon = month - 1;
  fields.tm_mday = day;
  fields.tm_hour = hour;
  fields.tm_min = minute;
  fields.tm_sec = second;
  fields.tm_isdst = -1;
  const std::int64_t time = std::mktime(&fields);
  if (time < 0) throw ATL::CAtlException(E_INVALIDARG);
  return time;
}

}  // namespace ZDXEngine

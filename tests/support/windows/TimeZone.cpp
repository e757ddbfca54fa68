#include "support/TimeZone.h"

#include <cstdlib>
#include <ctime>
#include <string_view>

namespace zdx_test {

bool SetTimeZone(const char* zone) {
  // An empty value takes the variable away.
  _putenv_s("TZ", zone == nullptr ? "" : zone);
  _tzset();
  return zone == nullptr || std::string_view(zone).find(',') == std::string_view::npos;
}

}  // namespace zdx_test

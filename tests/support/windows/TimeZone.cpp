#include "support/TimeZone.h"

#include <cstdlib>
#include <ctime>

namespace zdx_test {

void SetTimeZone(const char* zone) {
  // An empty value takes the variable away.
  _putenv_s("TZ", zone == nullptr ? "" : zone);
  _tzset();
}

}  // namespace zdx_test

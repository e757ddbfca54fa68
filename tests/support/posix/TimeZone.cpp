#include "support/TimeZone.h"

#include <cstdlib>
#include <ctime>

namespace zdx_test {

bool SetTimeZone(const char* zone) {
  if (zone == nullptr) {
    unsetenv("TZ");
  } else {
    setenv("TZ", zone, 1);
  }
  tzset();
  return true;
}

}  // namespace zdx_test

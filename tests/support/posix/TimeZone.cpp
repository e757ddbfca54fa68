#include "support/TimeZone.h"

#include <cstdlib>
#include <ctime>

namespace zdx_test {

void SetTimeZone(const char* zone) {
  if (zone == nullptr) {
    unsetenv("TZ");
  } else {
    setenv("TZ", zone, 1);
  }
  tzset();
}

}  // namespace zdx_test

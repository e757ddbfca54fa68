// The time zone of this process.
#pragma once

namespace zdx_test {

// Sets it by the value of TZ, as "UTC0"; null for the system's own.
void SetTimeZone(const char* zone);

}  // namespace zdx_test

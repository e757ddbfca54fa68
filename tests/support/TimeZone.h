// The time zone of this process.
#pragma once

namespace zdx_test {

// Sets it by the value of TZ, as "UTC0"; null for the system's own.  False if the system doesn't
// take such a value: not each knows rules of summer time.
bool SetTimeZone(const char* zone);

}  // namespace zdx_test

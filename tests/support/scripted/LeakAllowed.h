// What callers rely on being left alone, in tests that look for leaks.
#pragma once

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/lsan_interface.h>
#endif

namespace scripted {

// Nobody minds if memory that is taken while this lives never comes back.
class LeakAllowed {
 public:
  LeakAllowed() {}
  LeakAllowed(const LeakAllowed&) = delete;
  LeakAllowed& operator=(const LeakAllowed&) = delete;

 private:
#if defined(__SANITIZE_ADDRESS__)
  __lsan::ScopedDisabler disabler_;
#endif
};

}  // namespace scripted

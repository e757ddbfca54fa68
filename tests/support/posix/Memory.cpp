#include "support/Memory.h"

#include <sys/resource.h>

namespace zdx_test {

MemoryLimit::MemoryLimit(std::size_t bytes) {
#if !defined(__SANITIZE_ADDRESS__)
  rlimit limit = {};
  getrlimit(RLIMIT_AS, &limit);
  before_ = limit.rlim_cur;
  limit.rlim_cur = bytes;
  isInForce_ = setrlimit(RLIMIT_AS, &limit) == 0;
#else
  static_cast<void>(bytes);
#endif
}

MemoryLimit::~MemoryLimit() {
  if (!isInForce_) return;
  rlimit limit = {};
  getrlimit(RLIMIT_AS, &limit);
  limit.rlim_cur = before_;
  setrlimit(RLIMIT_AS, &limit);
}

}  // namespace zdx_test

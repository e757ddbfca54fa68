// The memory of this process: what it takes, and how much it may.
#pragma once

#include <cstddef>

namespace zdx_test {

// Lets the process have `bytes` at most while it lives.
class MemoryLimit {
 public:
  explicit MemoryLimit(std::size_t bytes);
  ~MemoryLimit();
  MemoryLimit(const MemoryLimit&) = delete;
  MemoryLimit& operator=(const MemoryLimit&) = delete;

  // False where the system has no such limit, or an allocator of another kind than clients'.
  bool IsInForce() const { return isInForce_; }

 private:
  bool isInForce_ = false;
  std::size_t before_ = 0;
};

}  // namespace zdx_test

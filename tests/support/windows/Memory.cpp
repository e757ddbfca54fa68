#include "support/Memory.h"

namespace zdx_test {

MemoryLimit::MemoryLimit(std::size_t /*bytes*/) {}

MemoryLimit::~MemoryLimit() { static_cast<void>(before_); }

}  // namespace zdx_test

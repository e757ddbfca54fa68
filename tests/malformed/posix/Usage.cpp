#include "malformed/Usage.h"

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <ctime>
#include <new>

namespace {

std::atomic<std::size_t> inUse{0};
std::atomic<std::size_t> most{0};
std::size_t before = 0;

}  // namespace

// The sanitizers have an allocator of their own.
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

namespace {

void* Counted(void* block) {
  if (block == nullptr) return nullptr;
  const std::size_t now = inUse += malloc_usable_size(block);
  std::size_t known = most;
  while (known < now && !most.compare_exchange_weak(known, now)) {
  }
  return block;
}

void Free(void* block) {
  if (block != nullptr) inUse -= malloc_usable_size(block);
  std::free(block);
}

}  // namespace

// Every allocation of the test and of the library goes through these.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return Counted(std::malloc(std::max<std::size_t>(size, 1)));
}
void* operator new(std::size_t size) {
  void* const block = operator new(size, std::nothrow);
  if (block == nullptr) throw std::bad_alloc();
  return block;
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* block) noexcept { Free(block); }
void operator delete[](void* block) noexcept { Free(block); }
void operator delete(void* block, std::size_t) noexcept { Free(block); }
void operator delete[](void* block, std::size_t) noexcept { Free(block); }

#endif

namespace damage {

double ProcessorSeconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

void WatchMemory() {
  before = inUse;
  most = before;
}

std::size_t MostMemory() { return most - before; }

}  // namespace damage

#include "malformed/Cost.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <new>

#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZdxEngineException.h"

// The sanitizers have an allocator and a pace of their own: there only the reading counts.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZDX_TEST_SANITIZED
#endif

namespace {

std::atomic<std::size_t> inUse{0};
std::atomic<std::size_t> most{0};

constexpr double kMostSeconds = 1.0;
constexpr std::size_t kMostBytes = std::size_t{64} << 20;

}  // namespace

#if !defined(ZDX_TEST_SANITIZED)

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

Outcome ReadAtFairCost(const std::string& bytes, const std::string& suffix) {
  const zdx_test::ScratchFile file(bytes, suffix);
  Outcome outcome;
  const std::size_t before = inUse;
  most = before;
  const std::clock_t start = std::clock();
  try {
    outcome.reading = zdx_test::ReadFile(zdx_test::NameOf(file.path()));
  } catch (const ZDXEngine::FileError& error) {
    outcome.refused = true;
    outcome.reading.diagnostics = ZDXEngine::Diagnostics::LastOpening();
    EXPECT_FALSE(error.errorMessage.empty());
  }
  outcome.cost.seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  outcome.cost.bytes = most - before;
#if !defined(ZDX_TEST_SANITIZED)
  EXPECT_LT(outcome.cost.seconds, kMostSeconds);
  EXPECT_LT(outcome.cost.bytes, kMostBytes + 4 * bytes.size());
#else
  static_cast<void>(kMostSeconds);
  static_cast<void>(kMostBytes);
#endif
  return outcome;
}

}  // namespace damage

#include "malformed/Cost.h"

#include <gtest/gtest.h>

#include "ZDXEngine/ZdxEngineException.h"
#include "malformed/Usage.h"
#include "support/Paths.h"
#include "support/Scratch.h"

// The sanitizers have an allocator and a pace of their own: there only the reading counts.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZDX_TEST_SANITIZED
#endif

namespace {

constexpr double kMostSeconds = 1.0;
constexpr std::size_t kMostBytes = std::size_t{64} << 20;

}  // namespace

namespace damage {

Outcome ReadAtFairCost(const std::string& bytes, const std::string& suffix) {
  const zdx_test::ScratchFile file(bytes, suffix);
  Outcome outcome;
  WatchMemory();
  const double start = ProcessorSeconds();
  try {
    outcome.reading = zdx_test::ReadFile(zdx_test::NameOf(file.path()));
  } catch (const ZDXEngine::FileError& error) {
    outcome.refused = true;
    outcome.reading.diagnostics = ZDXEngine::Diagnostics::LastOpening();
    EXPECT_FALSE(error.errorMessage.empty());
  }
  outcome.cost.seconds = ProcessorSeconds() - start;
  outcome.cost.bytes = MostMemory();
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

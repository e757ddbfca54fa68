#include "backends/walker/Ids.h"

#include <utility>

namespace zdx::walker {
namespace {

constexpr std::uint64_t kStep = std::uint64_t{1} << 48;
constexpr std::uint32_t kMultiples = 1U << 16;

}  // namespace

std::uint64_t Ids::Take(std::uint64_t wanted) {
  const std::uint64_t id = HasFreeMultiple(wanted) ? FirstFreeMultiple(wanted) : HighestFree();
  Mark(id);
  return id;
}

bool Ids::HasFreeMultiple(std::uint64_t wanted) const {
  const auto found = taken_.find(wanted % kStep);
  return found == taken_.end() || found->second < kMultiples;
}

// Ends because there is one.
std::uint64_t Ids::FirstFreeMultiple(std::uint64_t wanted) {
  std::uint64_t free = wanted;
  for (auto found = next_.find(free); found != next_.end(); found = next_.find(free)) {
    free = found->second;
  }
  // Whoever comes this way again leaps over all that is taken.
  for (std::uint64_t at = wanted; at != free;) at = std::exchange(next_[at], free + kStep);
  return free;
}

std::uint64_t Ids::HighestFree() {
  while (next_.count(highest_) != 0) --highest_;
  return highest_;
}

void Ids::Mark(std::uint64_t id) {
  next_.emplace(id, id + kStep);
  ++taken_[id % kStep];
}

}  // namespace zdx::walker

// What tells the references of a walk from each other.
#pragma once

#include <cstdint>
#include <limits>
#include <unordered_map>

namespace zdx::walker {

// Gives each reference an id of its own: the one that it would have, or, if that is 0 or taken, the
// one with the smallest multiple of 2^48 added that is free.  The multiples of one id come round
// after 65,536; what finds none of them free gets the highest free number of all.
class Ids {
 public:
  // 0 is the walked drawing's.
  Ids() { Mark(0); }
  std::uint64_t Take(std::uint64_t wanted);

 private:
  bool HasFreeMultiple(std::uint64_t wanted) const;
  std::uint64_t FirstFreeMultiple(std::uint64_t wanted);
  std::uint64_t HighestFree();
  void Mark(std::uint64_t id);

  // Of each taken id one to go on looking from, so that many requests for one id cost little.
  std::unordered_map<std::uint64_t, std::uint64_t> next_;
  // How many ids are taken of those that differ by multiples.
  std::unordered_map<std::uint64_t, std::uint32_t> taken_;
  std::uint64_t highest_ = std::numeric_limits<std::uint64_t>::max();
};

}  // namespace zdx::walker

// How much one file may cost.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zdx::dwg {

// A damaged or hostile file may promise any size.  What it gets follows from its own.
class Budget {
 public:
  // For the bytes that decompressed pages take in memory.
  static Budget OfMemory(std::uint64_t fileSize) { return {std::uint64_t{32} << 20, 3 * fileSize}; }
  // For the bytes of the file that are gone through: in a sound one each is so once.
  static Budget OfReading(std::uint64_t fileSize) { return {std::uint64_t{4} << 20, 2 * fileSize}; }

  // For the pages of its sections: none is smaller than 32 bytes.
  static Budget OfPages(std::uint64_t fileSize) { return {0, fileSize / 32}; }

  std::uint64_t left() const { return left_; }
  // False if that much isn't left.
  bool Take(std::uint64_t bytes) {
    if (bytes > left_) return false;
    left_ -= bytes;
    return true;
  }

 private:
  Budget(std::uint64_t base, std::uint64_t more) : left_(base + more) {}

  std::uint64_t left_;
};

}  // namespace zdx::dwg

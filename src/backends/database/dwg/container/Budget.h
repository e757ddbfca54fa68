// How much one file may cost.
#pragma once

#include <cstdint>

namespace zdx::dwg {

// A damaged or hostile file may promise any size.  What it gets follows from its own.
class Budget {
 public:
  // For the bytes that decompressed pages take in memory.
  static Budget OfMemory(std::uint64_t fileSize) { return {std::uint64_t{32} << 20, 3 * fileSize}; }
  // For the bytes of the file that are gone through: in a sound one each is so once.
  static Budget OfReading(std::uint64_t fileSize) { return {std::uint64_t{4} << 20, 2 * fileSize}; }

  // For the entries of the object map: an object takes more bytes of the file than this allows it.
  static Budget OfEntries(std::uint64_t fileSize) { return {std::uint64_t{1} << 19, fileSize / 8}; }
  // For the pages that a file can have.
  static Budget OfPages(std::uint64_t fileSize) { return {64, fileSize / kLeastPageSize}; }

  std::uint64_t left() const { return left_; }
  // False if that much isn't left.
  bool Take(std::uint64_t bytes) {
    if (bytes > left_) return false;
    left_ -= bytes;
    return true;
  }

 private:
  static constexpr std::uint64_t kLeastPageSize = 0x20;

  Budget(std::uint64_t base, std::uint64_t more) : left_(base + more) {}

  std::uint64_t left_;
};

}  // namespace zdx::dwg

// How much one file may cost.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace zdx::dwg {

// A damaged or hostile file may promise any size.  What it gets follows from its own.
class Budget {
 public:
  // For the bytes that decompressed pages take in memory.
  static Budget OfMemory(std::uint64_t fileSize) { return {std::uint64_t{32} << 20, 3 * fileSize}; }
  // For the bytes of the file that are gone through: in a sound one each is so once, but for what
  // is decompressed again.
  static Budget OfReading(std::uint64_t fileSize) { return {std::uint64_t{4} << 20, 2 * fileSize}; }
  // For the bytes that decompression gives, pages that were let go and are wanted again included.
  static Budget OfWork(std::uint64_t fileSize) {
    return {std::uint64_t{512} << 20, 64 * 3 * fileSize};
  }
  // For the bytes of the records that are read: no byte of their section belongs to two of them.
  static Budget OfRecords(std::uint64_t fileSize, std::uint64_t sectionSize) {
    return {std::uint64_t{32} << 20, std::clamp(sectionSize, 3 * fileSize, 64 * fileSize)};
  }
  // For the objects that are looked at to find some of them, or that lists name: each is so once.
  static Budget OfObjects(std::uint64_t fileSize) { return {std::uint64_t{1} << 20, fileSize}; }

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

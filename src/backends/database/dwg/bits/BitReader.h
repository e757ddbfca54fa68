// A run of bits, read from its front.
//
// Bits are taken from the high end of each byte.  A number of several bytes may begin within a byte
// and has its low byte first.  The codes are those in which records write their fields; see
// docs/formats/dwg.md.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zdx::dwg {

// A reference to an object.
struct HandleReference {
  // 2 to 5: the value is a handle; 6, 8, 10 and 12: it is counted from the record's own.
  unsigned code = 0;
  std::uint64_t value = 0;

  // The handle meant by a reference that the record with handle `own` holds; 0 for none.
  std::uint64_t From(std::uint64_t own) const;
};

// Reading past the end gives zeros and makes the reader fail for good: a caller reads what it needs
// and looks at failed() once.
class BitReader {
 public:
  BitReader() = default;
  // The bits [begin, end) of `bytes`, counted from its first; what lies outside of `bytes` counts
  // as past the end.
  BitReader(std::string_view bytes, std::uint64_t begin, std::uint64_t end);

  bool failed() const { return failed_; }
  std::uint64_t position() const { return at_; }
  std::uint64_t end() const { return end_; }
  std::uint64_t Left() const { return end_ - at_; }
  // Goes on at another bit within the run.
  void Seek(std::uint64_t position);
  void Skip(std::uint64_t bits);

  bool B() { return Bits(1) != 0; }
  unsigned BB() { return static_cast<unsigned>(Bits(2)); }
  std::uint8_t RC() { return static_cast<std::uint8_t>(Bits(8)); }
  std::uint16_t RS() { return static_cast<std::uint16_t>(RawBytes(2)); }
  std::uint32_t RL() { return static_cast<std::uint32_t>(RawBytes(4)); }
  std::uint64_t RLL() { return RawBytes(8); }
  double RD();
  std::uint16_t BS();
  std::uint32_t BL();
  std::uint64_t BLL();
  double BD();
  // A type in the form that AC1024 and later give it.
  std::uint16_t OT();
  std::uint64_t UMC();
  std::int64_t MC();
  std::uint64_t MS();
  HandleReference H();
  // `count` bytes; fewer, and a failure, if there aren't as many.
  std::string Bytes(std::uint64_t count);

  // Up to 64 bits, as a number.
  std::uint64_t Bits(unsigned count) {
    const auto first = static_cast<std::size_t>(at_ >> 3);
    if (failed_ || count > kMostAtOnce || count > Left() || first + kWindow > bytes_.size()) {
      return SlowBits(count);
    }
    if (count == 0) return 0;
    // Nearly all that is read is short, and not at the very end.
    std::uint64_t window = 0;
    for (std::size_t i = 0; i < kWindow; ++i) {
      window = window << 8 | static_cast<std::uint8_t>(bytes_[first + i]);
    }
    const std::uint64_t rest = window << (at_ & 7);
    at_ += count;
    return rest >> (kWindow * 8 - count);
  }

 private:
  // Bytes that are looked at together, and the bits that are surely among them wherever they begin.
  static constexpr std::size_t kWindow = 8;
  static constexpr unsigned kMostAtOnce = kWindow * 8 - 7;

  std::uint64_t SlowBits(unsigned count);
  bool Take(std::uint64_t bits);
  void Fail();
  // A number of `count` bytes, up to 8, low byte first.
  std::uint64_t RawBytes(unsigned count);

  std::string_view bytes_;
  std::uint64_t at_ = 0;
  std::uint64_t end_ = 0;
  bool failed_ = false;
};

}  // namespace zdx::dwg

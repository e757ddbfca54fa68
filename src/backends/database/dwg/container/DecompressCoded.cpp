#include <cstdint>

#include "backends/database/dwg/container/Decompression.h"
#include "backends/database/dwg/container/LiteralOrder.h"
#include "backends/database/dwg/container/OutputWindow.h"

namespace zdx::dwg {
namespace {

// A run of literals is this much longer than its opcode says, and goes on if it has the most that
// an opcode can say.
constexpr std::size_t kRunBase = 8;
constexpr std::size_t kLongCodedRun = 0x0F + kRunBase;

class CodedDecompressor {
 public:
  CodedDecompressor(std::string_view stream, std::size_t most) : stream_(stream), out_(most) {}

  bool Run() {
    opcode_ = Next();
    if (opcode_ >> 4 == 2) {
      Next();
      Next();
      literals_ = Next() & 7;
    }
    while (!failed_) {
      if (!CopyLiterals()) return false;
      if (AtEnd()) return !failed_;
      if (!CopyMatches()) return false;
      if (ended_) return true;
    }
    return false;
  }

  std::string Take() { return out_.Take(); }

 private:
  bool AtEnd() const { return at_ == stream_.size(); }

  unsigned Next() {
    if (AtEnd()) {
      failed_ = true;
      return 0;
    }
    return static_cast<std::uint8_t>(stream_[at_++]);
  }

  std::size_t RunLength() {
    std::size_t length = opcode_ + kRunBase;
    if (length != kLongCodedRun) return length;
    std::size_t more = Next();
    length += more;
    if (more != 0xFF) return length;
    do {
      more = Next();
      more |= std::size_t{Next()} << 8;
      length += more;
    } while (more == 0xFFFF && !failed_);
    return length;
  }

  bool CopyLiterals() {
    const std::size_t length = literals_ != 0 ? literals_ : RunLength();
    if (failed_ || length > stream_.size() - at_) return false;
    at_ += length;
    return AppendLiterals(stream_.substr(at_ - length, length), out_);
  }

  // Follows instructions until one says that literals come: `literals_` tells how many or, if it is
  // 0, the opcode that was read last.  The stream may also end behind an instruction.
  bool CopyMatches() {
    opcode_ = Next();
    for (;;) {
      if (!CopyMatch()) return false;
      literals_ = opcode_ & 7;
      if (literals_ != 0) return true;
      ended_ = AtEnd();
      if (ended_) return true;
      opcode_ = Next();
      if (opcode_ >> 4 == 0) return true;
      if (opcode_ >> 4 == 0x0F) opcode_ &= 0x0F;
    }
  }

  bool CopyMatch() {
    std::size_t length = 0;
    std::size_t distance = 0;
    const unsigned kind = opcode_ >> 4;
    if (kind == 2) {
      ReadLongMatch(length, distance);
    } else {
      const unsigned first = Next();
      if (kind == 0) {
        const unsigned second = Next();
        length = (opcode_ & 0x0F) + 0x13 + (second >> 3 & 0x10);
        distance = first + ((second & 0x78) << 5) + 1;
        opcode_ = second;
      } else if (kind == 1) {
        const unsigned second = Next();
        length = (opcode_ & 0x0F) + 3;
        distance = first + ((second & 0xF8) << 5) + 1;
        opcode_ = second;
      } else {
        length = kind;
        distance = (opcode_ & 0x0F) + ((first & 0xF8) << 1) + 1;
        opcode_ = first;
      }
    }
    return !failed_ && out_.Copy(distance, length);
  }

  void ReadLongMatch(std::size_t& length, std::size_t& distance) {
    distance = Next();
    distance |= std::size_t{Next()} << 8;
    const unsigned third = Next();
    length = opcode_ & 7;
    if ((opcode_ & 8) == 0) {
      length += third & 0xF8;
      opcode_ = third;
      return;
    }
    const unsigned fourth = Next();
    ++distance;
    length += (std::size_t{third} << 3) + (std::size_t{fourth & 0xF8} << 8) + 0x100;
    opcode_ = fourth;
  }

  std::string_view stream_;
  OutputWindow out_;
  std::size_t at_ = 0;
  bool failed_ = false;
  bool ended_ = false;
  unsigned opcode_ = 0;
  std::size_t literals_ = 0;
};

}  // namespace

Decompressed DecompressCoded(std::string_view stream, std::size_t most) {
  CodedDecompressor decompressor(stream, most);
  const bool whole = decompressor.Run();
  return {decompressor.Take(), whole};
}

}  // namespace zdx::dwg

#include <cstdint>

#include "backends/database/dwg/container/Decompression.h"
#include "backends/database/dwg/container/OutputWindow.h"

namespace zdx::dwg {
namespace {

constexpr unsigned kEnd = 0x11;
constexpr unsigned kLastLiteralOpcode = 0x0F;
// The shortest run by an opcode of its own is a byte longer.
constexpr std::size_t kShortestRun = 3;
constexpr std::size_t kLongPagedRun = 18;

// Reads a stream byte by byte; past its end it gives zeros and fails.
class Source {
 public:
  explicit Source(std::string_view bytes) : bytes_(bytes) {}

  bool failed() const { return failed_; }
  unsigned Next() {
    if (at_ == bytes_.size()) {
      failed_ = true;
      return 0;
    }
    return static_cast<std::uint8_t>(bytes_[at_++]);
  }
  std::string_view Take(std::size_t count) {
    if (count > bytes_.size() - at_) {
      failed_ = true;
      count = bytes_.size() - at_;
    }
    at_ += count;
    return bytes_.substr(at_ - count, count);
  }
  // A length that goes on: 255 for each byte 0, and the byte behind them.
  std::size_t Extension() {
    std::size_t length = 0;
    unsigned byte = Next();
    for (; byte == 0 && !failed_; byte = Next()) length += 255;
    return length + byte;
  }

 private:
  std::string_view bytes_;
  std::size_t at_ = 0;
  bool failed_ = false;
};

struct Instruction {
  std::size_t length = 0;
  std::size_t distance = 0;
  std::size_t literals = 0;
};

// The two bytes behind an opcode that tell a distance, low part first, and how many literals
// follow.
void ReadDistance(Source& source, std::size_t base, Instruction& instruction) {
  const unsigned low = source.Next();
  const unsigned high = source.Next();
  instruction.distance = base + (low >> 2 | high << 6);
  instruction.literals = low & 3;
}

Instruction ReadInstruction(Source& source, unsigned opcode) {
  Instruction instruction;
  if (opcode >= 0x40) {
    instruction.length = (opcode >> 4) - 1;
    instruction.distance = ((opcode >> 2 & 3) | source.Next() << 2) + 1;
    instruction.literals = opcode & 3;
  } else if (opcode >= 0x20) {
    const std::size_t length = opcode & 0x1F;
    instruction.length = length != 0 ? length + 2 : 33 + source.Extension();
    ReadDistance(source, 1, instruction);
  } else {
    const std::size_t length = opcode & 7;
    instruction.length = length != 0 ? length + 2 : 9 + source.Extension();
    ReadDistance(source, 0x4000 + (std::size_t{opcode & 8} << 11), instruction);
  }
  return instruction;
}

std::size_t RunLength(Source& source, unsigned opcode) {
  return opcode != 0 ? opcode + kShortestRun : kLongPagedRun + source.Extension();
}

// Reads an opcode; a run of literals may stand before it.  False if the stream is damaged.
bool ReadOpcode(Source& source, OutputWindow& out, unsigned& opcode) {
  opcode = source.Next();
  if (opcode > kLastLiteralOpcode) return !source.failed();
  const std::string_view run = source.Take(RunLength(source, opcode));
  if (!out.Append(run)) return false;
  opcode = source.Next();
  return !source.failed() && opcode > kLastLiteralOpcode;
}

bool Decompress(Source& source, OutputWindow& out) {
  unsigned opcode = 0;
  if (!ReadOpcode(source, out, opcode)) return false;
  while (opcode != kEnd) {
    const Instruction instruction = ReadInstruction(source, opcode);
    if (source.failed() || !out.Copy(instruction.distance, instruction.length)) return false;
    if (instruction.literals == 0) {
      if (!ReadOpcode(source, out, opcode)) return false;
      continue;
    }
    if (!out.Append(source.Take(instruction.literals))) return false;
    opcode = source.Next();
    if (source.failed() || opcode <= kLastLiteralOpcode) return false;
  }
  return true;
}

}  // namespace

Decompressed DecompressPaged(std::string_view stream, std::size_t most) {
  Source source(stream);
  OutputWindow out(most);
  const bool whole = Decompress(source, out);
  return {out.Take(), whole};
}

}  // namespace zdx::dwg

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <vector>

#include "support/dwg/Compression.h"

namespace dwg {
namespace {

using Bytes = std::vector<unsigned>;

Bytes NumbersOf(const std::string& bytes) {
  Bytes numbers;
  for (const char byte : bytes) numbers.push_back(static_cast<unsigned char>(byte));
  return numbers;
}

// A reader of streams, which tells the kinds of instructions that it met.
class Stream {
 public:
  explicit Stream(const std::string& bytes) : bytes_(NumbersOf(bytes)) {}

  bool AtEnd() const { return at_ >= bytes_.size(); }
  unsigned Next() { return bytes_.at(at_++); }

  void Copy(std::size_t length, std::size_t distance) {
    ASSERT_GT(distance, 0u);
    ASSERT_LE(distance, text.size());
    for (; length > 0; --length) text += text[text.size() - distance];
  }

  void Literals(std::size_t count) {
    for (; count > 0; --count) text += static_cast<char>(Next());
  }

  // Zero bytes count 255 each; the first other byte ends the number.
  std::size_t Long(std::size_t base) {
    unsigned byte = Next();
    for (; byte == 0; byte = Next()) base += 255;
    return base + byte;
  }

  const Bytes& All() const { return bytes_; }
  std::size_t At() const { return at_; }
  void Skip(std::size_t count) { at_ += count; }

  std::string text;
  std::set<unsigned> kinds;

 private:
  Bytes bytes_;
  std::size_t at_ = 0;
};

void Run(Stream& stream, unsigned opcode) {
  stream.Literals((opcode & 15) != 0 ? (opcode & 15) + 3 : stream.Long(18));
}

// Returns how many literals follow the copy.
unsigned CopyFrom(Stream& stream, unsigned opcode) {
  if (opcode >= 0x40) {
    stream.Copy((opcode >> 4) - 1, ((opcode >> 2 & 3) | stream.Next() << 2) + 1);
    return opcode & 3;
  }
  const bool isFar = opcode < 0x20;
  const unsigned size = opcode & (isFar ? 7 : 0x1F);
  const std::size_t length = size != 0 ? size + 2 : stream.Long(isFar ? 9 : 33);
  const unsigned low = stream.Next();
  const unsigned distance = low >> 2 | stream.Next() << 6;
  stream.Copy(length, isFar ? ((opcode & 8) << 11) + distance + 0x4000 : distance + 1);
  return low & 3;
}

Stream Decompressed(const std::string& bytes) {
  Stream stream(bytes);
  unsigned opcode = stream.Next();
  EXPECT_LT(opcode, 0x10u);
  Run(stream, opcode);
  for (opcode = stream.Next(); opcode != 0x11; opcode = stream.Next()) {
    stream.kinds.insert(opcode >= 0x40 ? 4 : opcode >= 0x20 ? 2 : 1);
    const unsigned literals = CopyFrom(stream, opcode);
    stream.Literals(literals);
    if (literals == 0 && stream.All()[stream.At()] < 0x10) Run(stream, stream.Next());
  }
  EXPECT_EQ(stream.Next() + stream.Next(), 0u);
  EXPECT_TRUE(stream.AtEnd());
  return stream;
}

constexpr const char* kPieces[32] = {"",
                                     "1@0",
                                     "2@0",
                                     "3@0",
                                     "4@0",
                                     "1@4 4@0",
                                     "1@5 4@1 1@0",
                                     "2@5 4@1 1@0",
                                     "8@0",
                                     "1@8 8@0",
                                     "1@9 8@1 1@0",
                                     "2@9 8@1 1@0",
                                     "4@8 8@0",
                                     "1@12 4@8 8@0",
                                     "1@13 4@9 8@1 1@0",
                                     "2@13 4@9 8@1 1@0",
                                     "16@0",
                                     "8@9 1@8 8@0",
                                     "1@17 16@1 1@0",
                                     "3@16 16@0",
                                     "4@16 16@0",
                                     "1@20 4@16 16@0",
                                     "2@20 4@16 16@0",
                                     "3@20 4@16 16@0",
                                     "8@16 16@0",
                                     "8@17 1@16 16@0",
                                     "1@25 8@17 1@16 16@0",
                                     "2@25 8@17 1@16 16@0",
                                     "4@24 8@16 16@0",
                                     "1@28 4@24 8@16 16@0",
                                     "2@28 4@24 8@16 16@0",
                                     "1@30 4@26 8@18 16@2 2@0"};

std::string Piece(const std::string& source, std::size_t size, std::size_t from) {
  const std::string piece = source.substr(from, size);
  if (size == 2 || size == 3) return {piece.rbegin(), piece.rend()};
  return size == 16 ? piece.substr(8) + piece.substr(0, 8) : piece;
}

// Puts the literals of one run in their order.
void CodedLiterals(Stream& stream, std::size_t count) {
  std::string source;
  for (std::size_t i = 0; i < count; ++i) source += static_cast<char>(stream.Next());
  std::size_t at = 0;
  for (; count - at >= 32; at += 32) {
    for (const unsigned part : {24u, 16u, 8u, 0u}) stream.text += source.substr(at + part, 8);
  }
  std::istringstream pieces(kPieces[count - at]);
  std::size_t size = 0;
  char sign = 0;
  std::size_t from = 0;
  while (pieces >> size >> sign >> from) stream.text += Piece(source.substr(at), size, from);
}

std::size_t RunLength(Stream& stream, unsigned opcode) {
  std::size_t length = opcode + 8;
  if (length != 0x17) return length;
  unsigned more = stream.Next();
  length += more;
  if (more != 0xFF) return length;
  do {
    more = stream.Next();
    more |= stream.Next() << 8;
    length += more;
  } while (more == 0xFFFF);
  return length;
}

// Returns the instruction's last byte.
unsigned CodedCopy(Stream& stream, unsigned opcode) {
  const unsigned kind = opcode >> 4;
  stream.kinds.insert(kind > 3 ? 3 : kind == 2 && (opcode & 8) != 0 ? 4 : kind);
  const unsigned a = stream.Next();
  if (kind > 2) {
    stream.Copy(kind, (opcode & 15) + ((a & 0xF8) << 1) + 1);
    return a;
  }
  const unsigned b = stream.Next();
  if (kind == 0) {
    stream.Copy((opcode & 15) + 0x13 + (b >> 3 & 0x10), a + ((b & 0x78) << 5) + 1);
    return b;
  }
  if (kind == 1) {
    stream.Copy((opcode & 15) + 3, a + ((b & 0xF8) << 5) + 1);
    return b;
  }
  const unsigned c = stream.Next();
  if ((opcode & 8) == 0) {
    stream.Copy((opcode & 7) + (c & 0xF8), a | b << 8);
    return c;
  }
  const unsigned d = stream.Next();
  stream.Copy((opcode & 7) + (c << 3) + ((d & 0xF8) << 8) + 0x100, (a | b << 8) + 1);
  return d;
}

Stream CodedDecompressed(const std::string& bytes) {
  Stream stream(bytes);
  unsigned opcode = stream.Next();
  std::size_t literals = 0;
  if (opcode >> 4 == 2) {
    stream.Skip(2);
    literals = stream.Next() & 7;
  }
  while (true) {
    CodedLiterals(stream, literals != 0 ? literals : RunLength(stream, opcode));
    if (stream.AtEnd()) return stream;
    opcode = stream.Next();
    do {
      literals = CodedCopy(stream, opcode) & 7;
      if (literals != 0 || stream.AtEnd()) break;
      opcode = stream.Next();
      if (opcode >> 4 == 15)
        opcode &= 15;
      else if (opcode >> 4 == 0)
        break;
    } while (true);
    if (stream.AtEnd()) return stream;
  }
}

std::string Noise(std::size_t size, unsigned seed) {
  std::string bytes;
  for (; bytes.size() < size; seed = seed * 1664525 + 1013904223) {
    bytes += static_cast<char>(seed >> 24);
  }
  return bytes;
}

// Copies of all lengths from near and far, with all numbers of literals between them.
std::string Mixed() {
  std::string bytes = Noise(9000, 1);
  for (unsigned i = 1; i < 60; ++i) {
    bytes += Noise(i % 11, i) + bytes.substr(bytes.size() - 40 * i - 100, 3 + i);
    bytes += Noise(i % 5, i + 7) + bytes.substr(bytes.size() - 5 - i % 300, 4 + i % 5);
    bytes += bytes.substr(i * 20, 20 + i) + bytes.substr(i * 90, 4 + i * 7);
    bytes += bytes.substr(i * 50, 4 + i % 4);
  }
  return bytes + Noise(9000, 3) + bytes.substr(0, 7) + bytes.substr(500, 300) + Noise(3, 9);
}

std::vector<std::string> Samples() {
  std::vector<std::string> samples = {Mixed(), std::string(0x7000, '\0'), Noise(70000, 5),
                                      "ABCDABCDABCDABCD"};
  for (unsigned size = 4; size < 80; ++size) samples.push_back(Noise(size, size));
  for (const std::size_t size : {18u, 19u, 272u, 273u, 274u, 276u, 277u, 278u, 279u, 65812u, 65813u,
                                 65814u, 131347u, 131348u, 131349u}) {
    samples.push_back(Noise(size, 11));
  }
  return samples;
}

TEST(Compression, AReaderGetsBackWhatWasCompressed) {
  for (const std::string& bytes : Samples()) {
    for (const Squeeze squeeze : {Squeeze::Repeats, Squeeze::LiteralsOnly}) {
      EXPECT_TRUE(Decompressed(Compressed(bytes, squeeze)).text == bytes) << bytes.size();
    }
  }
}

TEST(Compression, EveryKindOfInstructionOccurs) {
  EXPECT_EQ(Decompressed(Compressed(Mixed(), Squeeze::Repeats)).kinds,
            (std::set<unsigned>{1, 2, 4}));
}

TEST(Compression, LiteralsOnlyCopiesNothing) {
  const std::string bytes(5000, 'x');
  EXPECT_TRUE(Decompressed(Compressed(bytes, Squeeze::LiteralsOnly)).kinds.empty());
  EXPECT_LT(Compressed(bytes, Squeeze::Repeats).size(), 100u);
}

TEST(CodedCompression, AReaderGetsBackWhatWasCompressed) {
  for (const std::string& bytes : Samples()) {
    for (const Squeeze squeeze : {Squeeze::Repeats, Squeeze::LiteralsOnly}) {
      EXPECT_TRUE(CodedDecompressed(CodedCompressed(bytes, squeeze)).text == bytes) << bytes.size();
    }
  }
  EXPECT_EQ(CodedDecompressed(CodedCompressed("abc", Squeeze::Repeats)).text, "abc");
}

TEST(CodedCompression, EveryKindOfInstructionOccurs) {
  EXPECT_EQ(CodedDecompressed(CodedCompressed(Mixed(), Squeeze::Repeats)).kinds,
            (std::set<unsigned>{0, 1, 2, 3, 4}));
}

}  // namespace
}  // namespace dwg

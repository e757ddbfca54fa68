#include <algorithm>
#include <array>

#include "support/dwg/Bytes.h"
#include "support/dwg/Compression.h"
#include "support/dwg/Repeats.h"

namespace dwg {
namespace {

constexpr std::size_t kBlock = 32;
constexpr std::size_t kShortestCodedRun = 8;
constexpr std::size_t kLongestShortCodedRun = 22;
constexpr std::size_t kLongestCodedCopy = 0x100FF;
constexpr std::size_t kFarthestCodedCopy = 0xFFFF;

struct Piece {
  std::size_t size;
  std::size_t from;
};

// From which places of the stream a reader takes the last bytes of a run, by their number.
std::vector<Piece> PiecesOf(std::size_t size) {
  static const std::array<std::vector<Piece>, kBlock> kPieces = {{
      {},
      {{1, 0}},
      {{2, 0}},
      {{3, 0}},
      {{4, 0}},
      {{1, 4}, {4, 0}},
      {{1, 5}, {4, 1}, {1, 0}},
      {{2, 5}, {4, 1}, {1, 0}},
      {{8, 0}},
      {{1, 8}, {8, 0}},
      {{1, 9}, {8, 1}, {1, 0}},
      {{2, 9}, {8, 1}, {1, 0}},
      {{4, 8}, {8, 0}},
      {{1, 12}, {4, 8}, {8, 0}},
      {{1, 13}, {4, 9}, {8, 1}, {1, 0}},
      {{2, 13}, {4, 9}, {8, 1}, {1, 0}},
      {{16, 0}},
      {{8, 9}, {1, 8}, {8, 0}},
      {{1, 17}, {16, 1}, {1, 0}},
      {{3, 16}, {16, 0}},
      {{4, 16}, {16, 0}},
      {{1, 20}, {4, 16}, {16, 0}},
      {{2, 20}, {4, 16}, {16, 0}},
      {{3, 20}, {4, 16}, {16, 0}},
      {{8, 16}, {16, 0}},
      {{8, 17}, {1, 16}, {16, 0}},
      {{1, 25}, {8, 17}, {1, 16}, {16, 0}},
      {{2, 25}, {8, 17}, {1, 16}, {16, 0}},
      {{4, 24}, {8, 16}, {16, 0}},
      {{1, 28}, {4, 24}, {8, 16}, {16, 0}},
      {{2, 28}, {4, 24}, {8, 16}, {16, 0}},
      {{1, 30}, {4, 26}, {8, 18}, {16, 2}, {2, 0}},
  }};
  return kPieces[size];
}

// The place of the stream from which a reader takes byte `i` of a piece.
std::size_t PlaceOf(const Piece& piece, std::size_t i) {
  if (piece.size == 2 || piece.size == 3) return piece.from + piece.size - 1 - i;
  if (piece.size == 16) return piece.from + (i + 8) % 16;
  return piece.from + i;
}

// Puts the literals where a reader looks for them.
void AppendLiterals(std::string& stream, std::string_view literals) {
  for (; literals.size() >= kBlock; literals.remove_prefix(kBlock)) {
    for (const std::size_t part : {24u, 16u, 8u, 0u}) stream += literals.substr(part, 8);
  }
  std::string placed(literals.size(), '\0');
  std::size_t next = 0;
  for (const Piece& piece : PiecesOf(literals.size())) {
    for (std::size_t i = 0; i < piece.size; ++i) placed[PlaceOf(piece, i)] = literals[next++];
  }
  stream += placed;
}

void AppendRunLength(std::string& stream, std::size_t length) {
  if (length <= kLongestShortCodedRun) return AppendByte(stream, length - kShortestCodedRun);
  AppendByte(stream, 0x0F);
  std::size_t rest = length - kLongestShortCodedRun - 1;
  AppendByte(stream, std::min<std::size_t>(rest, 0xFF));
  if (rest < 0xFF) return;
  for (rest -= 0xFF; rest >= 0xFFFF; rest -= 0xFFFF) AppendNumber(stream, 0xFFFF, 2);
  AppendNumber(stream, rest, 2);
}

// The run that a stream begins with.
void AppendFirstRun(std::string& stream, std::string_view literals) {
  if (literals.size() < kShortestCodedRun) {
    stream.append("\x20\0\0", 3);
    AppendByte(stream, literals.size());
  } else {
    AppendRunLength(stream, literals.size());
  }
  AppendLiterals(stream, literals);
}

// `literals` of the low three bits go into the instruction's last byte.  Behind another copy the
// instruction 0 is written as 0xF, for 0 would begin a run there.
void AppendCopy(std::string& stream, const Repeat& copy, std::size_t literals, bool isBehindCopy) {
  const std::size_t distance = copy.distance - 1;
  const std::size_t length = copy.length;
  if (length <= (isBehindCopy ? 14u : 15u) && distance < 0x200) {
    AppendByte(stream, length << 4 | (distance & 0xF));
    AppendByte(stream, distance >> 4 << 3 | literals);
  } else if (length <= 18 && distance < 0x2000) {
    AppendByte(stream, 0x10 | (length - 3));
    AppendByte(stream, distance);
    AppendByte(stream, distance >> 8 << 3 | literals);
  } else if (length >= 0x13 && length <= 0x32 && distance < 0x1000) {
    const std::size_t beyond = length - 0x13;
    AppendByte(stream, (isBehindCopy ? 0xF0u : 0u) | (beyond & 0xF));
    AppendByte(stream, distance);
    AppendByte(stream, (beyond & 0x10) << 3 | distance >> 8 << 3 | literals);
  } else if (length < 0x100) {
    AppendByte(stream, 0x20 | (length & 7));
    AppendNumber(stream, copy.distance, 2);
    AppendByte(stream, (length & 0xF8) | literals);
  } else {
    const std::size_t beyond = length - 0x100;
    AppendByte(stream, 0x28 | (beyond & 7));
    AppendNumber(stream, distance, 2);
    AppendByte(stream, beyond >> 3);
    AppendByte(stream, beyond >> 11 << 3 | literals);
  }
}

}  // namespace

std::string CodedCompressed(std::string_view bytes, Squeeze squeeze) {
  std::vector<Repeat> repeats = {{bytes}};
  if (squeeze == Squeeze::Repeats)
    repeats = FindRepeats(bytes, {3, kLongestCodedCopy, kFarthestCodedCopy, 1});
  std::string stream;
  AppendFirstRun(stream, repeats.front().literals);
  for (std::size_t i = 0; i + 1 < repeats.size(); ++i) {
    const std::string_view literals = repeats[i + 1].literals;
    const bool isRun = literals.size() >= kShortestCodedRun;
    const bool isBehindCopy = i > 0 && repeats[i].literals.empty();
    AppendCopy(stream, repeats[i], isRun ? 0 : literals.size(), isBehindCopy);
    if (isRun) AppendRunLength(stream, literals.size());
    AppendLiterals(stream, literals);
  }
  return stream;
}

}  // namespace dwg

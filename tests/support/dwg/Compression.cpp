#include "support/dwg/Compression.h"

#include "support/dwg/Bytes.h"
#include "support/dwg/Repeats.h"

namespace dwg {
namespace {

// A stream begins with a run of literals, and a run has at least this many.
constexpr std::size_t kShortestRun = 4;
constexpr std::size_t kLongestShortRun = 18;
constexpr std::size_t kNear = 1024;
constexpr std::size_t kMiddle = 16384;
// The farthest that one kind of instruction without a flag reaches.
constexpr std::size_t kFarthest = 0x7FFF;
constexpr std::size_t kLongest = 0x7000;

// A zero byte for each 255, then the rest, which is never zero.
void AppendLong(std::string& stream, std::size_t length) {
  for (; length > 255; length -= 255) stream += '\0';
  AppendByte(stream, length);
}

void AppendRun(std::string& stream, std::string_view literals) {
  if (literals.size() <= kLongestShortRun) {
    AppendByte(stream, literals.size() - 3);
  } else {
    stream += '\0';
    AppendLong(stream, literals.size() - kLongestShortRun);
  }
  stream += literals;
}

void AppendDistance(std::string& stream, std::size_t distance, std::size_t literals) {
  AppendByte(stream, distance << 2 | literals);
  AppendByte(stream, distance >> 6);
}

void AppendCopy(std::string& stream, const Repeat& copy, std::size_t literals) {
  if (copy.distance <= kNear && copy.length <= 14) {
    const std::size_t distance = copy.distance - 1;
    AppendByte(stream, (copy.length + 1) << 4 | (distance & 3) << 2 | literals);
    AppendByte(stream, distance >> 2);
  } else if (copy.distance <= kMiddle) {
    const bool isShort = copy.length <= 33;
    AppendByte(stream, isShort ? 0x20 | (copy.length - 2) : 0x20);
    if (!isShort) AppendLong(stream, copy.length - 33);
    AppendDistance(stream, copy.distance - 1, literals);
  } else {
    const bool isShort = copy.length <= 9;
    AppendByte(stream, isShort ? 0x10 | (copy.length - 2) : 0x10);
    if (!isShort) AppendLong(stream, copy.length - 9);
    AppendDistance(stream, copy.distance - 0x4000, literals);
  }
}

}  // namespace

std::string Compressed(std::string_view bytes, Squeeze squeeze) {
  std::vector<Repeat> repeats = {{bytes}};
  if (squeeze == Squeeze::Repeats) {
    repeats = FindRepeats(bytes, {kShortestRun, kLongest, kFarthest, kShortestRun});
  }
  std::string stream;
  AppendRun(stream, repeats.front().literals);
  for (std::size_t i = 0; i + 1 < repeats.size(); ++i) {
    const std::string_view literals = repeats[i + 1].literals;
    const bool isRun = literals.size() >= kShortestRun;
    AppendCopy(stream, repeats[i], isRun ? 0 : literals.size());
    if (isRun) {
      AppendRun(stream, literals);
    } else {
      stream += literals;
    }
  }
  return stream.append("\x11\0\0", 3);
}

}  // namespace dwg

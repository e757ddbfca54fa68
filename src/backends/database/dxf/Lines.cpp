#include "backends/database/dxf/Lines.h"

#include <bit>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace zdx::dxf {
namespace {

constexpr std::size_t kMostDigits = 6;

bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }
// The size of the line end at `at`: of LF, CR, CR LF or CR CR LF.
std::size_t LineEndSize(std::string_view bytes, std::size_t at) {
  if (bytes[at] == '\n') return 1;
  if (bytes.substr(at + 1, 1) == "\n") return 2;
  return bytes.substr(at + 1, 2) == "\r\n" ? 3 : 1;
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

#if defined(__SSE2__)

constexpr std::size_t kBlockSize = 64;

// One bit for each of the 64 bytes of a block.
struct BlockMasks {
  std::uint64_t lineEnds = 0;
  std::uint64_t zeros = 0;
  std::uint64_t blanks = 0;
};

std::uint64_t MaskOf(__m128i matches) {
  return static_cast<std::uint32_t>(_mm_movemask_epi8(matches));
}

BlockMasks MasksAt(const char* block) {
  BlockMasks masks;
  for (unsigned lane = 0; lane < kBlockSize / 16; ++lane) {
    const __m128i bytes =
        _mm_loadu_si128(reinterpret_cast<const __m128i*>(block + std::size_t{lane} * 16));
    const __m128i lineEnd = _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')),
                                         _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\r')));
    const __m128i blank = _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(' ')),
                                       _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\t')));
    masks.lineEnds |= MaskOf(lineEnd) << (lane * 16);
    masks.blanks |= MaskOf(blank) << (lane * 16);
    masks.zeros |= MaskOf(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('0'))) << (lane * 16);
  }
  return masks;
}

#endif

// The begin of the line whose last character but blanks is the zero at `zero`, if there is nothing
// else before it on that line; npos otherwise.
std::size_t LineOfZero(std::string_view bytes, std::size_t from, std::size_t zero) {
  std::size_t begin = zero;
  while (begin > from && IsBlank(bytes[begin - 1])) --begin;
  return begin == from || IsLineEnd(bytes[begin - 1]) ? begin : std::string_view::npos;
}

// Looks at every byte: what the block search leaves over.
std::size_t FindZeroLineSlowly(std::string_view bytes, std::size_t begin, std::size_t from) {
  for (std::size_t at = from; at < bytes.size(); ++at) {
    if (bytes[at] != '0') continue;
    std::size_t end = at + 1;
    while (end < bytes.size() && IsBlank(bytes[end])) ++end;
    if (end < bytes.size() && !IsLineEnd(bytes[end])) continue;
    const std::size_t line = LineOfZero(bytes, begin, at);
    if (line != std::string_view::npos) return line;
  }
  return std::string_view::npos;
}

}  // namespace

std::string_view TakeLine(std::string_view bytes, std::size_t& at) {
  const std::size_t begin = at;
  while (at < bytes.size() && !IsLineEnd(bytes[at])) ++at;
  const std::string_view line = bytes.substr(begin, at - begin);
  if (at < bytes.size()) at += LineEndSize(bytes, at);
  return line;
}

std::string_view Trimmed(std::string_view line) {
  while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
  while (!line.empty() && IsBlank(line.back())) line.remove_suffix(1);
  return line;
}

bool ParseCode(std::string_view line, int& code) {
  line = Trimmed(line);
  const bool negative = !line.empty() && line.front() == '-';
  if (negative) line.remove_prefix(1);
  if (line.empty() || line.size() > kMostDigits) return false;
  int value = 0;
  for (const char c : line) {
    if (c < '0' || c > '9') return false;
    value = value * 10 + (c - '0');
  }
  code = negative ? -value : value;
  return true;
}

std::size_t FindZeroLine(std::string_view bytes, std::size_t from) {
  std::size_t at = from;
#if defined(__SSE2__)
  // A candidate is a zero with a blank or a line end on both sides.  The first and the last byte of
  // a block have a neighbour in another block: blocks overlap by two bytes.
  while (bytes.size() - at >= kBlockSize) {
    const BlockMasks masks = MasksAt(bytes.data() + at);
    const std::uint64_t edges = masks.lineEnds | masks.blanks;
    std::uint64_t before = edges << 1;
    if (at == from) before |= 1;
    std::uint64_t candidates = masks.zeros & before & (edges >> 1);
    for (; candidates != 0; candidates &= candidates - 1) {
      const std::size_t zero = at + static_cast<std::size_t>(std::countr_zero(candidates));
      std::size_t end = zero + 1;
      while (end < bytes.size() && IsBlank(bytes[end])) ++end;
      if (end < bytes.size() && !IsLineEnd(bytes[end])) continue;
      const std::size_t line = LineOfZero(bytes, from, zero);
      if (line != std::string_view::npos) return line;
    }
    at += kBlockSize - 2;
  }
#endif
  return FindZeroLineSlowly(bytes, from, at);
}

}  // namespace zdx::dxf

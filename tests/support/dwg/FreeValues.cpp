#include <stdexcept>

#include "support/dwg/Bytes.h"
#include "support/dwg/Drawing.h"
#include "support/dwg/TagValues.h"

namespace dwg {
namespace {

enum class Kind { Text, Point, Real, Short, Long, LongLong, Byte, Chunk, Handle };

struct CodeRange {
  int first;
  int last;
  Kind kind;
};

constexpr CodeRange kCodeRanges[] = {
    {5, 5, Kind::Handle},       {0, 9, Kind::Text},         {10, 17, Kind::Point},
    {18, 59, Kind::Real},       {60, 79, Kind::Short},      {90, 99, Kind::Long},
    {100, 109, Kind::Text},     {110, 119, Kind::Point},    {120, 149, Kind::Real},
    {160, 169, Kind::LongLong}, {170, 179, Kind::Short},    {210, 239, Kind::Point},
    {270, 279, Kind::Short},    {280, 299, Kind::Byte},     {300, 309, Kind::Text},
    {310, 319, Kind::Chunk},    {320, 369, Kind::Handle},   {370, 389, Kind::Short},
    {390, 399, Kind::Handle},   {400, 409, Kind::Short},    {410, 419, Kind::Text},
    {420, 429, Kind::Long},     {430, 439, Kind::Text},     {440, 459, Kind::Long},
    {460, 469, Kind::Real},     {470, 479, Kind::Text},     {480, 481, Kind::Handle},
    {1004, 1004, Kind::Chunk},  {1005, 1005, Kind::Handle}, {999, 1003, Kind::Text},
    {1010, 1013, Kind::Point},  {1014, 1059, Kind::Real},   {1060, 1070, Kind::Short},
    {1071, 1071, Kind::Long},
};

constexpr std::size_t kLongestChunk = 127;

Kind KindOf(int code) {
  for (const CodeRange& range : kCodeRanges) {
    if (code >= range.first && code <= range.last) return range.kind;
  }
  throw std::invalid_argument("no such group code: " + std::to_string(code));
}

void AppendReal(std::string& bytes, double value) {
  BitWriter bits;
  bits.RD(value);
  bytes += bits.Bytes();
}

// The three numbers of a point stand together under its first code.  Returns how many tags they
// were.
std::size_t AppendPoint(std::string& bytes, const std::vector<Tag>& tags, std::size_t at) {
  const int code = tags[at].code;
  std::size_t count = 0;
  for (int i = 0; i < 3; ++i) {
    const bool isThere = at + count < tags.size() && tags[at + count].code == code + 10 * i;
    AppendReal(bytes, isThere ? RealOf(tags[at + count++]) : 0.0);
  }
  return count;
}

Handle HandleOf(const Tag& tag) { return std::stoull("0" + TextOf(tag), nullptr, kHexadecimal); }

std::size_t IntegerSize(Kind kind) {
  switch (kind) {
    case Kind::Byte:
      return 1;
    case Kind::Short:
      return 2;
    case Kind::Long:
      return 4;
    default:
      return 8;
  }
}

void AppendChunk(std::string& bytes, std::string_view chunk) {
  if (chunk.size() > kLongestChunk) throw std::invalid_argument("too many bytes for one chunk");
  AppendNumber(bytes, chunk.size(), 1);
  bytes += chunk;
}

// As many chunks as the bytes need, at least one.
void AppendChunks(std::string& bytes, const Tag& tag) {
  const std::string all = TextOf(tag);
  std::size_t at = 0;
  do {
    AppendNumber(bytes, static_cast<std::uint64_t>(tag.code), 2);
    AppendChunk(bytes, std::string_view(all).substr(at, kLongestChunk));
    at += kLongestChunk;
  } while (at < all.size());
}

void AppendValue(std::string& bytes, const Drawing& drawing, const Tag& tag, Kind kind) {
  switch (kind) {
    case Kind::Text:
      bytes += drawing.FreeText(TextOf(tag), 2);
      break;
    case Kind::Real:
      AppendReal(bytes, RealOf(tag));
      break;
    case Kind::Chunk:
      AppendChunk(bytes, TextOf(tag));
      break;
    case Kind::Handle:
      AppendNumber(bytes, HandleOf(tag), 8);
      break;
    default:
      AppendNumber(bytes, static_cast<std::uint64_t>(IntegerOf(tag)), IntegerSize(kind));
  }
}

// In extended data a handle stands high byte first.
void AppendDataHandle(std::string& bytes, Handle handle) {
  for (int shift = 56; shift >= 0; shift -= 8) AppendNumber(bytes, handle >> shift, 1);
}

void AppendData(std::string& bytes, const Drawing& drawing, const Tag& tag) {
  const int code = tag.code - 1000;
  AppendNumber(bytes, static_cast<std::uint64_t>(code), 1);
  if (code == 0) {
    bytes += drawing.FreeText(TextOf(tag), 1);
  } else if (code == 2) {
    AppendNumber(bytes, TextOf(tag) == "}" ? 1 : 0, 1);
  } else if (code == 3) {
    AppendDataHandle(bytes, drawing.LayerHandle(TextOf(tag)));
  } else if (code == 5) {
    AppendDataHandle(bytes, HandleOf(tag));
  } else {
    AppendValue(bytes, drawing, tag, KindOf(tag.code));
  }
}

}  // namespace

std::string FreeValues(const Drawing& drawing, const std::vector<Tag>& tags) {
  std::string bytes;
  for (std::size_t at = 0; at < tags.size();) {
    const Kind kind = KindOf(tags[at].code);
    if (kind == Kind::Chunk) {
      AppendChunks(bytes, tags[at++]);
      continue;
    }
    AppendNumber(bytes, static_cast<std::uint64_t>(tags[at].code), 2);
    if (kind == Kind::Point) {
      at += AppendPoint(bytes, tags, at);
    } else {
      AppendValue(bytes, drawing, tags[at++], kind);
    }
  }
  return bytes;
}

std::vector<ApplicationData> DataOf(const Drawing& drawing, const std::vector<Tag>& tags) {
  std::vector<ApplicationData> data;
  for (std::size_t at = 0; at < tags.size();) {
    if (tags[at].code == 1001) {
      data.push_back({drawing.ApplicationHandle(TextOf(tags[at++])), {}});
      continue;
    }
    if (data.empty()) throw std::invalid_argument("extended data begins with its application");
    std::string& bytes = data.back().bytes;
    if (tags[at].code >= 1010 && tags[at].code <= 1015) {
      AppendNumber(bytes, static_cast<std::uint64_t>(tags[at].code - 1000), 1);
      at += AppendPoint(bytes, tags, at);
    } else {
      AppendData(bytes, drawing, tags[at++]);
    }
  }
  return data;
}

}  // namespace dwg

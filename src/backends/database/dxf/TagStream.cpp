#include "backends/database/dxf/TagStream.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

// In the one-byte form this byte says that a code of two bytes follows.
constexpr unsigned char kLongCode = 0xFF;

// The fewest characters of a type that the search for one in a damaged binary file believes in.
constexpr std::size_t kLeastTypeLength = 3;

bool IsTypeCharacter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

// The bytes of a value of fixed size; 0 for texts, byte strings and unknown kinds.
std::size_t FixedSizeOf(ValueKind kind) {
  switch (kind) {
    case ValueKind::kDouble:
    case ValueKind::kInt64:
      return 8;
    case ValueKind::kInt32:
      return 4;
    case ValueKind::kInt16:
      return 2;
    case ValueKind::kBool:
      return 1;
    default:
      return 0;
  }
}

unsigned char ByteAt(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

}  // namespace

std::size_t TagStream::Begin() const {
  if (form_ != Form::kText) return kBinarySentinelSize;
  return bytes_.starts_with(kUtf8Mark) ? kUtf8Mark.size() : 0;
}

TagStream::Outcome TagStream::Read(std::size_t& at, Tag& tag) const {
  if (at >= bytes_.size()) return Outcome::kEnd;
  tag.at = at;
  return form_ == Form::kText ? ReadText(at, tag) : ReadBinary(at, tag);
}

TagStream::Outcome TagStream::ReadText(std::size_t& at, Tag& tag) const {
  std::size_t next = at;
  std::string_view codeLine;
  // A blank line between tags is one too many: no code is blank.
  do {
    if (next >= bytes_.size()) return Outcome::kEnd;
    tag.at = next;
    codeLine = Trimmed(TakeLine(bytes_, next));
  } while (codeLine.empty());
  if (!ParseCode(codeLine, tag.code)) return Outcome::kDamaged;
  // A code without a value: the file was cut here.
  if (next >= bytes_.size()) return Outcome::kDamaged;
  tag.value = TakeLine(bytes_, next);
  at = next;
  return Outcome::kTag;
}

TagStream::Outcome TagStream::ReadBinary(std::size_t& at, Tag& tag) const {
  std::size_t next = at;
  if (!ReadBinaryCode(next, tag.code) || !ReadBinaryValue(next, tag)) return Outcome::kDamaged;
  at = next;
  return Outcome::kTag;
}

bool TagStream::ReadBinaryCode(std::size_t& at, int& code) const {
  std::size_t width = form_ == Form::kBinaryTwoByte ? 2 : 1;
  if (width == 1 && ByteAt(bytes_, at) == kLongCode) {
    ++at;
    width = 2;
  }
  if (bytes_.size() - at < width) return false;
  code = ByteAt(bytes_, at);
  if (width == 2) code |= ByteAt(bytes_, at + 1) << 8;
  at += width;
  return true;
}

bool TagStream::ReadBinaryValue(std::size_t& at, Tag& tag) const {
  const ValueKind kind = KindOf(tag.code);
  const std::size_t left = bytes_.size() - at;
  if (kind == ValueKind::kUnknown) return false;
  if (kind == ValueKind::kText) {
    const auto* const end =
        left == 0 ? nullptr : static_cast<const char*>(std::memchr(bytes_.data() + at, '\0', left));
    if (end == nullptr) return false;
    tag.value = bytes_.substr(at, static_cast<std::size_t>(end - bytes_.data()) - at);
    at += tag.value.size() + 1;
    return true;
  }
  std::size_t size = FixedSizeOf(kind);
  if (kind == ValueKind::kBytes) {
    if (left == 0) return false;
    size = ByteAt(bytes_, at);
    ++at;
  }
  if (bytes_.size() - at < size) return false;
  tag.value = bytes_.substr(at, size);
  at += size;
  return true;
}

ObjectStart TagStream::NextObject(std::size_t from) const {
  return form_ == Form::kText ? NextTextObject(from) : NextBinaryObject(from);
}

ObjectStart TagStream::ObjectAt(std::size_t at) const {
  Tag tag;
  std::size_t body = at;
  if (Read(body, tag) != Outcome::kTag) return {};
  return {at, body, form_ == Form::kText ? Trimmed(tag.value) : tag.value};
}

ObjectStart TagStream::NextTextObject(std::size_t from) const {
  while (from < bytes_.size()) {
    const std::size_t line = FindZeroLine(bytes_, from);
    if (line == kNowhere) break;
    std::size_t at = line;
    TakeLine(bytes_, at);
    if (at >= bytes_.size()) break;
    std::size_t body = at;
    const std::string_view type = Trimmed(TakeLine(bytes_, body));
    int code = 0;
    if (!type.empty() && !ParseCode(type, code)) return {line, body, type};
    from = at;
  }
  return {};
}

ObjectStart TagStream::NextBinaryObject(std::size_t from) const {
  Tag tag;
  while (true) {
    switch (Read(from, tag)) {
      case Outcome::kTag:
        if (tag.code == kTypeCode) return {tag.at, from, tag.value};
        break;
      case Outcome::kEnd:
        return {};
      case Outcome::kDamaged:
        from = FindBinaryType(from + 1);
        if (from == kNowhere) return {};
        break;
    }
  }
}

// The place at or after `from` of what looks like the code 0 and a type behind it.
std::size_t TagStream::FindBinaryType(std::size_t from) const {
  const std::size_t width = form_ == Form::kBinaryTwoByte ? 2 : 1;
  for (std::size_t at = from; at < bytes_.size();) {
    const void* const zero = std::memchr(bytes_.data() + at, '\0', bytes_.size() - at);
    if (zero == nullptr) return kNowhere;
    at = static_cast<std::size_t>(static_cast<const char*>(zero) - bytes_.data());
    if (bytes_.size() - at <= width) return kNowhere;
    std::size_t end = at + width;
    while (end < bytes_.size() && IsTypeCharacter(bytes_[end])) ++end;
    const bool ended = end < bytes_.size() && bytes_[end] == '\0';
    const bool isCode = width == 1 || bytes_[at + 1] == '\0';
    if (isCode && ended && end - at - width >= kLeastTypeLength) return at;
    ++at;
  }
  return kNowhere;
}

bool ObjectTags::Next(Tag& tag) {
  while (true) {
    const std::size_t expectedAt = at_;
    const TagStream::Outcome outcome = stream_->Read(at_, tag);
    if (outcome == TagStream::Outcome::kEnd) return false;
    endedByDamage_ = outcome == TagStream::Outcome::kDamaged;
    const bool damaged = endedByDamage_ || tag.at != expectedAt;
    if (damaged && damagedAt_ == kNowhere) damagedAt_ = expectedAt;
    if (endedByDamage_) return false;
    if (tag.code == kCommentCode) continue;
    if (tag.code != kTypeCode) return true;
    // The next object isn't entered, however often somebody asks.
    at_ = tag.at;
    return false;
  }
}

bool ParseInteger(Form form, std::string_view value, std::int64_t& number) {
  if (form != Form::kText) {
    if (value.empty() || value.size() > sizeof(number)) return false;
    std::uint64_t bits = 0;
    for (std::size_t i = value.size(); i-- > 0;) bits = bits << 8 | ByteAt(value, i);
    number = static_cast<std::int64_t>(bits);
    return true;
  }
  value = Trimmed(value);
  const char* const end = value.data() + value.size();
  const auto result = std::from_chars(value.data(), end, number);
  return result.ec == std::errc() && result.ptr == end;
}

bool ParseReal(Form form, std::string_view value, double& number) {
  double parsed = 0;
  if (form == Form::kText) {
    value = Trimmed(value);
    if (value.starts_with('+') && !value.starts_with("+-")) value.remove_prefix(1);
    const char* const end = value.data() + value.size();
    const auto result = std::from_chars(value.data(), end, parsed);
    if (result.ec != std::errc() || result.ptr != end) return false;
  } else {
    std::int64_t bits = 0;
    if (value.size() != sizeof(bits) || !ParseInteger(form, value, bits)) return false;
    parsed = std::bit_cast<double>(bits);
  }
  if (!std::isfinite(parsed)) return false;
  number = parsed;
  return true;
}

std::uint64_t ParseHandle(std::string_view value) {
  value = Trimmed(value);
  std::uint64_t handle = 0;
  const char* const end = value.data() + value.size();
  const auto result = std::from_chars(value.data(), end, handle, 16);
  return result.ec == std::errc() && result.ptr == end ? handle : 0;
}

}  // namespace zdx::dxf

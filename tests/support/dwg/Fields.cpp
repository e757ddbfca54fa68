#include "support/dwg/Fields.h"

namespace dwg {
namespace {

constexpr std::int64_t kColourByLayer = 0xC0000000;
constexpr std::int64_t kColourByBlock = 0xC1000000;
constexpr std::int64_t kColourOfIndex = 0xC3000000;
constexpr std::size_t kLongLength = 0x8000;

constexpr unsigned kNext = 6;
constexpr unsigned kPrevious = 8;
constexpr unsigned kAhead = 0xA;
constexpr unsigned kBehind = 0xC;

std::size_t ByteCount(Handle value) {
  std::size_t count = 0;
  for (; value != 0; value >>= 8) ++count;
  return count;
}

}  // namespace

Fields::Fields(Version version, const drawing::PageEncoder& encoder, bool textsEndWithZero,
               References references, Handle own)
    : version_(version),
      encoder_(encoder),
      textsEndWithZero_(textsEndWithZero),
      areReferencesApart_(references == References::Apart || version >= Version::AC1021),
      own_(own) {}

BitWriter& Fields::ReferenceStream() { return areReferencesApart_ ? references_ : *this; }

void Fields::T(std::string_view utf8) {
  if (!utf8.empty()) hasText_ = true;
  if (version_ >= Version::AC1021) {
    const std::string text = Utf16(utf8);
    texts_.BS(static_cast<std::int64_t>(text.size() / 2));
    texts_.Raw(text);
    return;
  }
  std::string text = encoder_.Encode(utf8);
  if (!text.empty() && textsEndWithZero_) text += '\0';
  BS(static_cast<std::int64_t>(text.size()));
  Raw(text);
}

void Fields::H(Link link, Handle target) {
  ReferenceStream().Reference(static_cast<unsigned>(link), target);
}

void Fields::Near(Link link, Handle target) {
  const bool isAhead = target > own_;
  const Handle distance = isAhead ? target - own_ : own_ - target;
  const bool isShorter = ByteCount(distance) < ByteCount(target);
  if (target != 0 && distance == 1) {
    ReferenceStream().Reference(isAhead ? kNext : kPrevious, 0);
  } else if (distance != 0 && isShorter) {
    ReferenceStream().Reference(isAhead ? kAhead : kBehind, distance);
  } else {
    H(link, target);
  }
}

void Fields::Filler(std::string_view bytes) { ReferenceStream().Raw(bytes); }

void Fields::CMC(int index) {
  if (version_ < Version::AC1018) return BS(index);
  BS(0);
  BL(index == kByLayer ? kColourByLayer : index == 0 ? kColourByBlock : kColourOfIndex | index);
  RC(0);
}

void Fields::Point3(double x, double y, double z) {
  for (const double value : {x, y, z}) BD(value);
}

void Fields::Point2(double x, double y) {
  RD(x);
  RD(y);
}

void Fields::BT() {
  if (version_ >= Version::AC1015) return B(true);
  BD(0.0);
}

void Fields::BE() {
  if (version_ >= Version::AC1015) return B(true);
  Point3(0.0, 0.0, 1.0);
}

// Behind the texts stand their length in bits, long ones in two parts, and whether there are any.
Fields::Streams Fields::Together(const BitWriter& head) const {
  Streams streams{head, 0};
  streams.bits.Append(*this);
  if (version_ >= Version::AC1021) {
    const std::size_t length = texts_.Size();
    if (hasText_) {
      streams.bits.Append(texts_);
      if (length >= kLongLength) streams.bits.RS(static_cast<unsigned>(length >> 15));
      streams.bits.RS(static_cast<unsigned>(
          length >= kLongLength ? (length & (kLongLength - 1)) | kLongLength : length));
    }
    streams.bits.B(hasText_);
  }
  streams.references = streams.bits.Size();
  streams.bits.Append(references_);
  return streams;
}

}  // namespace dwg

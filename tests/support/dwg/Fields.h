#pragma once

#include <cstdint>
#include <string_view>

#include "support/drawing/EntitySpec.h"
#include "support/drawing/GeoSpec.h"
#include "support/dwg/BitWriter.h"
#include "support/dwg/Texts.h"

namespace dwg {

using Handle = std::uint64_t;

// The base of the digits that tell a handle.
inline constexpr int kHexadecimal = 16;

// A colour's index and a line weight that come from elsewhere.
inline constexpr int kByLayer = 256;
inline constexpr int kLineWeightByBlock = -2;

// Where the corners of an area that holds nothing lie.
inline constexpr double kFarAway = 1e20;

// The codes of references.
enum class Link : unsigned { SoftOwner = 2, HardOwner = 3, SoftPointer = 4, HardPointer = 5 };

// The fields of a record or a section, which go into streams of their own: numbers, texts (apart
// from AC1021 on) and references.
class Fields : public BitWriter {
 public:
  enum class References { Apart, AmongTheRest };

  // `own` is the handle of the record, 0 for a section.  The encoder must outlive this.
  Fields(Version version, const drawing::PageEncoder& encoder, bool textsEndWithZero,
         References references, Handle own = 0);

  Version TargetVersion() const { return version_; }
  Handle Own() const { return own_; }
  bool IsSince(Version first) const { return version_ >= first; }

  // A text.
  void T(std::string_view utf8);
  // A reference, 0 for none.
  void H(Link link, Handle target);
  // A reference told by the distance from the record's own handle where that is shorter.
  void Near(Link link, Handle target);

  // Bytes without meaning behind the last reference.
  void Filler(std::string_view bytes);

  // A colour by its index; 256 by layer, 0 by block.
  void CMC(int index);
  void Point3(double x, double y, double z = 0.0);
  void Point2(double x, double y);
  // The usual thickness and direction of an entity.
  void BT();
  void BE();

  // The streams put together, from the 32 bits before a section's data or from a record's type on.
  // `head` is what stands before them.  Tells where the references begin.
  struct Streams {
    BitWriter bits;
    std::size_t references;
  };
  Streams Together(const BitWriter& head) const;

 private:
  BitWriter& ReferenceStream();

  Version version_;
  const drawing::PageEncoder& encoder_;
  bool textsEndWithZero_;
  bool areReferencesApart_;
  Handle own_;
  bool hasText_ = false;
  BitWriter texts_;
  BitWriter references_;
};

}  // namespace dwg

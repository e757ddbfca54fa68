// The runs of bits in which a record, or one of the sections like it, keeps its fields.
//
// From AC1021 on texts and handles stand apart from the other data.  Before, records have their
// handles apart, and sections have everything in one run.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "backends/database/dwg/bits/BitReader.h"
#include "backends/database/dwg/records/Format.h"

namespace zdx::dwg {

class Streams {
 public:
  Streams() = default;
  // The fields in the bits [begin, end) of `bytes`, whose handles begin at bit `handles`.
  static Streams OfRecord(Format format, std::string_view bytes, std::uint64_t begin,
                          std::uint64_t handles, std::uint64_t end);
  // The same for a section below AC1021, whose handles stand among the other fields.
  static Streams OfSection(std::string_view bytes, std::uint64_t begin, std::uint64_t end);

  // False as soon as a read went past the end of its run.
  bool Good() const;

  BitReader& Data() { return data_; }
  HandleReference Handle() { return handlesApart_ ? handles_.H() : data_.H(); }
  // A text as stored: bytes of the code page without terminator, or UTF-16 with the low byte first.
  std::string Text();
  // Whether there are more texts; false where they don't stand apart.
  bool HasTextsLeft() const { return strings_.Left() > 0 && !strings_.failed(); }
  // How many bits are left, for checks of what the record promises.
  std::uint64_t BitsLeft() const { return data_.Left() + strings_.Left() + handles_.Left(); }

 private:
  enum class Texts { kAmongData, kApart, kNone };

  BitReader data_;
  BitReader strings_;
  BitReader handles_;
  bool handlesApart_ = false;
  Texts texts_ = Texts::kAmongData;
};

}  // namespace zdx::dwg

// The frame in which the header variables and the classes stand.
//
// A mark, the size of what follows (4 bytes; 4 more from AC1032 on, and where a maintenance release
// has them), the fields, a check and the mark inverted.  From AC1021 on the fields begin with the
// place of their handles, in bits from its own begin.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "backends/database/dwg/container/Container.h"
#include "backends/database/dwg/records/Format.h"
#include "backends/database/dwg/records/Streams.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Holds the bytes that its streams read.
class SectionBlock {
 public:
  // Tells damage to `report`, calling the section `what`.  Nothing can be read from a block that
  // isn't all there.
  SectionBlock(Section& section, Format format, std::string_view mark, const wchar_t* what,
               model::Report& report);
  SectionBlock(const SectionBlock&) = delete;
  SectionBlock& operator=(const SectionBlock&) = delete;

  // Null if there are none.
  Streams* Fields() { return streams_ ? &*streams_ : nullptr; }
  // Where it stands, for messages.
  std::uint64_t place() const { return place_; }

 private:
  Scratch scratch_;
  std::uint64_t place_;
  std::optional<Streams> streams_;
};

}  // namespace zdx::dwg

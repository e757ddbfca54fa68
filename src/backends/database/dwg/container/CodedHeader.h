// The head page of AC1021, and its copy at the end of the file.
//
// Its content stands in three words of the error-correcting code, compressed.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Where the pages begin.
inline constexpr std::uint64_t kFirstCodedPage = 0x480;

// A map on pages of its own, of which there are two alike.
struct CodedMap {
  // By which a page is found: a page map has places, a section map numbers.
  std::uint64_t place = 0;
  std::uint64_t copyPlace = 0;
  std::uint64_t compressedSize = 0;
  std::uint64_t size = 0;
  std::uint64_t repeats = 0;
  std::uint64_t compressedCrc = 0;
  std::uint64_t crc = 0;
};

struct CodedHeader {
  // Its places are addresses in the file.
  CodedMap pageMap;
  CodedMap sectionMap;
};

// Mends what the parity can mend, tries the copy if that isn't enough, and warns.  nullopt if
// neither can be used.
std::optional<CodedHeader> ReadCodedHeader(std::string_view bytes, model::Report& report);

}  // namespace zdx::dwg

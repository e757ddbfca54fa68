// The section in which AC1018 and later keep the summary.
//
//   title, subject, author, keywords, comments, last editor, revision number, hyperlink base
//   time in the drawing, time of creation, time of the last change (8 bytes each)
//   number of custom entries (2 bytes); each a name and a value
//
// A text is its number of characters (2 bytes), the terminator counted, and the characters: bytes
// of the code page in AC1018, UTF-16 later.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "backends/database/dwg/records/Format.h"

namespace zdx::dwg {

// Texts as stored, without terminators; views of the section's bytes.
struct StoredSummary {
  // In the order of the section; nullopt for those that damage took away.
  std::array<std::optional<std::string_view>, 8> fields;
  std::vector<std::pair<std::string_view, std::string_view>> custom;
  bool damaged = false;
};

StoredSummary ReadSummarySection(std::string_view bytes, Format format);

}  // namespace zdx::dwg

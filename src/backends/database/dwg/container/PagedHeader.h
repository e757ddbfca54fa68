// The masked header of AC1018, AC1024 and later, and its copy at the end of the file.
//
//   OFFSET  SIZE  MEANING
//   0x54      8   address of the page map, counted from the first page
//   0x5C      4   number of the section map's page
//   0x68      4   check of all 0x6C bytes, with this word 0
//
// All other words follow from the pages, and nothing here asks for them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "backends/database/model/Report.h"

namespace zdx::dwg {

// Where the pages begin.
inline constexpr std::uint64_t kFirstPage = 0x100;

struct PagedHeader {
  // In the file.
  std::uint64_t pageMapAddress = 0;
  std::int64_t sectionMapPage = 0;
};

// Tries the copy if the check of the first is wrong, and warns.  nullopt if neither can be used.
std::optional<PagedHeader> ReadPagedHeader(std::string_view bytes, model::Report& report);

}  // namespace zdx::dwg

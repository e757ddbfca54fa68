#pragma once

#include <string>

#include "support/dwg/Drawing.h"

namespace dwg {

// The file around the drawing's records: AC1014 and AC1015, with nothing compressed; AC1018, AC1024
// and later, in pages; AC1021, in pages with bytes to correct errors by.
std::string FlatFile(Drawing& drawing);
std::string PagedFile(Drawing& drawing);
std::string CodedFile(Drawing& drawing);

// The bytes 0x00 to 0x7F of the last two, or as many as the first has of them: version, address of
// the preview, code page.
std::string FileHead(const Drawing& drawing, std::size_t previewAddress);
// What follows in the last two: the addresses of the summary and the program's texts.
void PutPagedHead(std::string& head, std::size_t summaryAddress, std::size_t appInfoAddress,
                  std::size_t appInfoHistoryAddress);

// What the paged files' sections hold, in the order of their pages.
struct PlainSection {
  const char* name;
  std::string bytes;
};
// Those that are records or tell of them.  The objects come with their mark.
std::vector<PlainSection> RecordSections(Drawing& drawing);

}  // namespace dwg

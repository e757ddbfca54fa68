// The section in which AC1018 and later list the files that a drawing needs.
//
//   number of purposes (4 bytes); their names
//   number of files (4 bytes); of each its name, path, fingerprint and version, then its purpose,
//   time and size (4 bytes each), a word (2 bytes), how often it is needed (4 bytes)
//
// A text is its number of bytes (4 bytes) and the bytes: of the code page in AC1018, UTF-16 later,
// where some writers give each character four bytes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "backends/database/dwg/records/Format.h"

namespace zdx::dwg {

// Texts as the drawing's others are stored: in the code page, or UTF-16 with the low byte first.
struct ListedFile {
  // As the drawing names it.
  std::string name;
  // As it was found when the drawing was saved; may be empty.
  std::string path;
};

struct FileList {
  // At most 100,000.
  std::vector<ListedFile> files;
  // Whether there are more, or the list ends before it should.
  bool damaged = false;
};

// The list in `bytes`; a section of no bytes lists nothing.
FileList ReadFileList(std::string_view bytes, Format format);

}  // namespace zdx::dwg

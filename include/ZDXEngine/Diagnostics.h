// What the last opening of a drawing in this process found.
//
// The engine's exceptions name the file and the kind of failure; this tells the rest: which format
// and version the file turned out to be, and what was wrong in it, with the place.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// Where in a file something was found.  A text format tells the line, counted from 1, a binary one
// the offset in bytes, counted from 0.
struct DiagnosticPlace {
  std::optional<std::uint64_t> offset;
  std::optional<std::uint64_t> line;
  // The object concerned, where it is known.
  std::optional<std::uint64_t> handle;
};

struct DiagnosticMessage {
  std::wstring text;
  DiagnosticPlace place;
};

// A copy of what is known about the last opening.  Values are read when they are asked for, so more
// warnings may have come by the time a call of FilePropertyMgr returns.
struct Diagnostics {
  // The file's name as it was given; empty if nothing was opened yet.
  std::wstring path;
  // The format in words, such as "DWG" or "DXF (text)"; empty if it wasn't recognised.
  std::wstring format;
  // The version as the file spells it; empty if it doesn't tell.
  std::wstring version;
  // The code page as the file spells it; of a DWG file, which holds a number for it, as DXF files
  // do. Empty if the file doesn't tell, or tells a number that isn't known.
  std::wstring codePage;
  // What made the opening fail: empty if it succeeded.
  std::vector<DiagnosticMessage> errors;
  // What was wrong but could be passed over.  At most 100 are kept.
  std::vector<DiagnosticMessage> warnings;
  // How many warnings there were, kept or not.  What isn't kept counts each time that it is met.
  std::uint64_t warningCount = 0;

  // What the last opening of a drawing in this process found.
  ZDXENGINE_API static Diagnostics LastOpening();
};

}  // namespace ZDXEngine

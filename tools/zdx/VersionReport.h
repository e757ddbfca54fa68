// The versions of one file.
#pragma once

#include <optional>
#include <string>

#include "Failure.h"

namespace zdx {

// In the engine's words, as "kDHL_1032".
struct VersionReport {
  // The one that the engine writes.
  std::wstring current;
  // The one as which the drawing was saved last; empty if it can't be opened.
  std::wstring lastSavedAs;
  // The one that the file's first bytes tell.
  std::wstring signature;
  // Why the drawing can't be opened.
  std::optional<Failure> failure;
};

// The name and three lines, UTF-8, ending in a line end.
std::string TextOf(const std::wstring& path, const VersionReport& report);

// One JSON document on one line, UTF-8, ending in a line end.  docs/json.md tells its form.
std::string JsonOf(const std::wstring& path, const VersionReport& report);

// The same of the tool itself, which writes `current`.
std::string TextOfTool(const std::wstring& current);
std::string JsonOfTool(const std::wstring& current);

}  // namespace zdx

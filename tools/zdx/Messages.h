// What the tool says on standard error.
#pragma once

#include <string>
#include <string_view>

#include "Failure.h"
#include "ZDXEngine/Diagnostics.h"

namespace zdx {

// Writes "zdx: ", `text` and a line end.  `text` is fit for a terminal.
void Complain(std::string_view text);

// One line about a file that failed: "zdx: FILE: line 12: the sentence (the reason)".
void ComplainAboutFailure(const std::wstring& path, const Failure& failure);

// One line for each warning, "zdx: FILE: line 12: warning: the text", and one for those that the
// engine didn't keep.
void ComplainAboutWarnings(const ZDXEngine::Diagnostics& diagnostics);

// `place` in words: "line 12", "offset 96, handle 1F"; empty if nothing is known.
std::string PlaceText(const ZDXEngine::DiagnosticPlace& place);

// A handle as drawings show it: hexadecimal, upper case, no leading zeros.
std::string HandleText(std::uint64_t handle);

// How many warnings the engine counted but didn't keep.
std::uint64_t WarningsLeftOut(const ZDXEngine::Diagnostics& diagnostics);

}  // namespace zdx

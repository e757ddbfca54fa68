// The streams that a process is given.  All texts are UTF-8.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zdx {

enum class Stream { kOutput, kError };

// Makes failed writes come back as errors instead of ending the process, and keeps the numbers of
// streams that were closed from going to drawings.  Called once, first of all.
void PrepareStandardStreams();

// Writes `text` at once: its bytes to a file or a pipe, its characters to a console.  Why it
// failed, in the system's words.
std::optional<std::string> Write(Stream stream, std::string_view text);

// Writes `text` to standard output.  On failure says so on standard error and returns false.
bool WriteOutput(std::string_view text);

}  // namespace zdx

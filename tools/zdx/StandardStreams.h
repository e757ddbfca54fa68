// The three streams that a process is given.
#pragma once

#include <string_view>

namespace zdx {

// Makes failed writes come back as errors instead of ending the process, and keeps the numbers of
// streams that were closed from going to drawings.  Called once, first of all.
void PrepareStandardStreams();

// Writes `text` to standard output at once.  On failure says so on standard error and returns
// false.
bool WriteOutput(std::string_view text);

}  // namespace zdx

// Runs a program as a person at a shell does.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zdx_test {

// Where a program's standard output goes.
enum class OutputTo {
  kCapture,
  // The stream is closed before the program starts.
  kNowhere,
  // A pipe that nobody reads.
  kBrokenPipe,
  // A device without room.
  kFullDevice,
};

struct Command {
  std::filesystem::path program;
  // Without the program's name.
  std::vector<std::string> arguments;
  // "NAME=value", in place of what the test has under that name.
  std::vector<std::string> environment;
  // Empty for the test's own.
  std::filesystem::path workingFolder;
  OutputTo output = OutputTo::kCapture;
};

struct Outcome {
  // What the program returned, or -1 if a signal ended it.
  int exitCode = -1;
  // The signal that ended it, or 0.
  int signal = 0;
  std::string out;
  std::string err;
};

// Runs the program to its end.  Throws std::system_error if it can't be started.
Outcome RunCommand(const Command& command);

}  // namespace zdx_test

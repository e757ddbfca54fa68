// Runs a program as a person at a shell does.
#pragma once

#include <chrono>
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
  // A device without room; where there is none such, a file that may only be read.
  kFullDevice,
};

struct Command {
  std::filesystem::path program;
  // Without the program's name; in UTF-8, or the bytes of a name that isn't text.
  std::vector<std::string> arguments;
  // "NAME=value", in place of what the test has under that name.
  std::vector<std::string> environment;
  // Empty for the test's own.
  std::filesystem::path workingFolder;
  OutputTo output = OutputTo::kCapture;
  // After which the program is ended.
  std::chrono::seconds limit{60};
};

struct Outcome {
  // What the program returned, or -1 if it was ended.
  int exitCode = -1;
  // What ended the program if it didn't end by itself, in words: "signal 11"; else empty.
  std::string endedBy;
  std::string out;
  std::string err;
};

// Whether there is such a program of this system's.
bool CanRun(const std::filesystem::path& program);

// Runs the program to its end.  Throws std::system_error if it can't be started.
Outcome RunCommand(const Command& command);

// The program that is running.
std::filesystem::path ThisProgram();

// How many files, or things that are opened like files, this process has open.
std::size_t CountOpenFiles();

// A variable of this process's environment, in UTF-8; empty if there is none of that name.
std::string EnvironmentVariable(const std::string& name);

}  // namespace zdx_test

// Telling files one after the other.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "ExitCode.h"
#include "Failure.h"
#include "JsonFailure.h"
#include "Messages.h"
#include "OutputFormat.h"
#include "StandardStreams.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

// Tells each of `files`, the system's bytes, as soon as `read` has read it, in the order given;
// what `read` gives of a file that it could read is shown by TextOf or JsonOf.  Returns the exit
// code.
template <class Read>
int TellFiles(const std::vector<std::string>& files, OutputFormat format, Read read) {
  int exitCode = kAllFilesRead;
  // An empty line between drawings, not behind the last.
  std::string separator;
  for (const std::string& file : files) {
    const std::wstring path = ZDXEngine::WideFromUtf8(file);
    const auto result = read(path);
    if (const auto* const failure = std::get_if<Failure>(&result)) {
      exitCode = kFileFailed;
      ComplainAboutFailure(path, *failure);
      if (format == OutputFormat::kJson && !WriteOutput(JsonOf(path, *failure))) {
        return kOutputFailed;
      }
      continue;
    }
    const auto& report = std::get<0>(result);
    if (format == OutputFormat::kJson) {
      if (!WriteOutput(JsonOf(path, report))) return kOutputFailed;
      continue;
    }
    if (!WriteOutput(separator + TextOf(path, report))) return kOutputFailed;
    separator = "\n";
    ComplainAboutWarnings(report.diagnostics);
  }
  return exitCode;
}

}  // namespace zdx

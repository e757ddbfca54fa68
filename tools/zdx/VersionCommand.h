// `zdx version`: tells the versions of the tool and of drawings.
#pragma once

#include <string>
#include <vector>

#include "OutputFormat.h"

namespace zdx {

struct VersionOptions {
  OutputFormat format = OutputFormat::kText;
  // As the command line gives them, in the system's bytes; none for the tool's own.
  std::vector<std::string> files;
};

// Tells each file as soon as it was read, in the order given.  Returns the exit code.
int RunVersion(const VersionOptions& options);

}  // namespace zdx

// `zdx info`: tells the properties of drawings.
#pragma once

#include <string>
#include <vector>

#include "DrawingReport.h"
#include "OutputFormat.h"

namespace zdx {

struct InfoOptions {
  OutputFormat format = OutputFormat::kText;
  Wanted wanted;
  // As the command line gives them, in the system's bytes.
  std::vector<std::string> files;
};

// Tells each file as soon as it was read, in the order given.  Returns the exit code.
int RunInfo(const InfoOptions& options);

}  // namespace zdx

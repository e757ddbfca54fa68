// `zdx blocks`: lists the blocks that have attributes.
#pragma once

#include <string>
#include <vector>

#include "OutputFormat.h"

namespace zdx {

struct BlocksOptions {
  OutputFormat format = OutputFormat::kText;
  // As the command line gives them, in the system's bytes.
  std::vector<std::string> files;
};

// Tells each file as soon as it was read, in the order given.  Returns the exit code.
int RunBlocks(const BlocksOptions& options);

}  // namespace zdx

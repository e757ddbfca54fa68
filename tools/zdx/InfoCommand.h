// `zdx info`: tells the properties of drawings.
#pragma once

#include <string>
#include <vector>

#include "Selection.h"

namespace zdx {

enum class OutputFormat { kText, kJson };

struct InfoOptions {
  OutputFormat format = OutputFormat::kText;
  Selection selection = ZDXEngine::FilePropertyMgr::AllProperties;
  // As the command line gives them, in the system's bytes.
  std::vector<std::string> files;
};

// Tells each file as soon as it was read, in the order given.  Returns the exit code.
int RunInfo(const InfoOptions& options);

}  // namespace zdx

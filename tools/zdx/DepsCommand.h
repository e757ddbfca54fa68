// `zdx deps`: tells which files drawings depend on.
#pragma once

#include <string>
#include <vector>

#include "DependencyWalk.h"
#include "OutputFormat.h"

namespace zdx {

struct DepsOptions {
  OutputFormat format = OutputFormat::kText;
  DependencyWanted wanted;
  bool onlyMissing = false;
  bool nested = false;
  // Folders in which files are looked for besides.
  std::vector<std::wstring> searchPath;
  // As the command line gives them, in the system's bytes.
  std::vector<std::string> files;
};

// Tells each file as soon as it was walked, in the order given, or one graph of all at the end.
// Returns the exit code.
int RunDeps(const DepsOptions& options);

}  // namespace zdx

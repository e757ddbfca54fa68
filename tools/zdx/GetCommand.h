// `zdx get`: prints one value of drawings as it is.
#pragma once

#include <string>
#include <vector>

#include "PropertyKey.h"

namespace zdx {

struct GetOptions {
  // As the command line spells it.
  std::string word;
  PropertyKey key;
  // As the command line gives them, in the system's bytes.
  std::vector<std::string> files;
};

// Prints the value of each file as soon as it was read, in the order given, and a line end behind
// it.  Returns the exit code.
int RunGet(const GetOptions& options);

}  // namespace zdx

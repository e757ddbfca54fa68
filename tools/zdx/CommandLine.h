// What the command line asks for.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "BlocksCommand.h"
#include "DepsCommand.h"
#include "GetCommand.h"
#include "InfoCommand.h"
#include "ThumbCommand.h"
#include "VersionCommand.h"

namespace zdx {

// Text that was asked for: help or the version.
struct PrintAndLeave {
  std::string text;
};

// A command line that can't be followed.
struct WrongUsage {
  // Whole lines for standard error.
  std::string text;
};

using Request = std::variant<InfoOptions, BlocksOptions, GetOptions, ThumbOptions, DepsOptions,
                             VersionOptions, PrintAndLeave, WrongUsage>;

// Reads what stands behind the program's name.
Request ParseCommandLine(const std::vector<std::string>& arguments);

}  // namespace zdx

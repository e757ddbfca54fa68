#include "architecture/Exports.h"

#include <sstream>
#include <stdexcept>

#include "support/Process.h"

namespace architecture {

std::vector<std::string> ExportsOf(const std::filesystem::path& library) {
  zdx_test::Command command;
  command.program = ZDX_NM;
  command.arguments = {"--dynamic", "--defined-only", "--format=posix", library.native()};
  const zdx_test::Outcome outcome = zdx_test::RunCommand(command);
  if (outcome.exitCode != 0) throw std::runtime_error(outcome.err);
  // A name, and more about it, on each line.
  std::vector<std::string> symbols;
  std::istringstream lines(outcome.out);
  for (std::string line; std::getline(lines, line);) {
    symbols.push_back(line.substr(0, line.find(' ')));
  }
  return symbols;
}

}  // namespace architecture

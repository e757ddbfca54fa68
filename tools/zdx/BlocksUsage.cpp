#include <CLI/CLI.hpp>

#include "CommandUsage.h"
#include "CommandWords.h"

namespace zdx {

namespace {

class Blocks : public CommandUsage {
 public:
  explicit Blocks(CLI::App* command) : CommandUsage(command) {
    AddOutputFormat(*command, format_);
    AddFiles(*command, files_);
    command->footer(kExitCodesOfFiles);
  }

  Request Understood() const override {
    return BlocksOptions{OutputFormatOf(format_), FilesOf(files_)};
  }

 private:
  std::string format_ = "text";
  std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<CommandUsage> BlocksUsage(CLI::App& app) {
  return std::make_unique<Blocks>(
      app.add_subcommand("blocks", "Lists the blocks that have attributes."));
}

}  // namespace zdx

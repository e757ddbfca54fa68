#include <CLI/CLI.hpp>

#include "CommandUsage.h"
#include "CommandWords.h"

namespace zdx {

namespace {

class Version : public CommandUsage {
 public:
  explicit Version(CLI::App* command) : CommandUsage(command) {
    AddOutputFormat(*command, format_);
    AddFiles(*command, files_)->required(false);
    command->footer(kExitCodesOfFiles);
  }

  Request Understood() const override {
    return VersionOptions{OutputFormatOf(format_), FilesOf(files_)};
  }

 private:
  std::string format_ = "text";
  std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<CommandUsage> VersionUsage(CLI::App& app) {
  return std::make_unique<Version>(
      app.add_subcommand("version", "Tells the versions of drawings, or the tool's own."));
}

}  // namespace zdx

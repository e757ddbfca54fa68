#include <CLI/CLI.hpp>

#include "BlockFilter.h"
#include "CommandUsage.h"
#include "CommandWords.h"

namespace zdx {

namespace {

std::string CheckSelection(const std::string& list) {
  std::string unknown;
  if (ParseSelection(Unmarked(list), unknown)) return {};
  return "'" + unknown + "' isn't one of " + SelectionNames();
}

std::string CheckBlock(const std::string& word) {
  std::string problem;
  ParseBlockFilter(Unmarked(word), 1, problem);
  return problem;
}

constexpr const char* kBlockForm =
    "BLOCK: NAME[:tag|:prompt][=GUID]; the values are named by prompts, or else by tags, and JSON\n"
    "has them under the GUID";

class Info : public CommandUsage {
 public:
  explicit Info(CLI::App* command) : CommandUsage(command) {
    AddOutputFormat(*command, format_);
    command
        ->add_option("--select", selection_,
                     "what to tell: names of the list below, separated by commas; default all")
        ->check(CheckSelection)
        ->type_name("LIST");
    command
        ->add_option("--block", blocks_,
                     "tell the values of a block's attributes, too; may be given several times")
        ->allow_extra_args(false)
        ->check(CheckBlock)
        ->type_name("BLOCK");
    AddFiles(*command, files_);
    command->footer("LIST: " + SelectionNames() + "\n\n" + kBlockForm + "\n\n" + kExitCodesOfFiles);
  }

  Request Understood() const override {
    InfoOptions options;
    options.format = OutputFormatOf(format_);
    std::string problem;
    options.wanted.selection =
        ParseSelection(selection_, problem).value_or(options.wanted.selection);
    for (const std::string& word : blocks_) {
      const std::size_t number = options.wanted.blocks.size() + 1;
      options.wanted.blocks.push_back(
          ParseBlockFilter(Unmarked(word), number, problem).value_or(BlockFilter()));
    }
    options.files = FilesOf(files_);
    return options;
  }

 private:
  std::string format_ = "text";
  std::string selection_ = "all";
  std::vector<std::string> blocks_;
  std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<CommandUsage> InfoUsage(CLI::App& app) {
  return std::make_unique<Info>(app.add_subcommand("info", "Tells the properties of drawings."));
}

}  // namespace zdx

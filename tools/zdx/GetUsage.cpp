#include <CLI/CLI.hpp>

#include "CommandUsage.h"
#include "CommandWords.h"
#include "KeyNames.h"

namespace zdx {

namespace {

constexpr const char* kExitCodesOfGet =
    "Exit codes: 0 every file has the value, 1 a file hasn't, 2 a file couldn't be read,\n"
    "64 wrong usage, 74 the output couldn't be written.";

std::string CheckKey(const std::string& word) {
  std::string problem;
  ParseKey(Unmarked(word), problem);
  return problem;
}

class Get : public CommandUsage {
 public:
  explicit Get(CLI::App* command) : CommandUsage(command) {
    command->add_option("KEY", key_, "what to tell: one of the list below")
        ->required()
        ->check(CheckKey)
        ->type_name("");
    AddFiles(*command, files_);
    command->footer("KEY:\n" + KeyForms() + "\n" + kExitCodesOfGet);
  }

  Request Understood() const override {
    std::string problem;
    const std::string word = Unmarked(key_);
    return GetOptions{word, ParseKey(word, problem).value_or(PropertyKey()), FilesOf(files_)};
  }

 private:
  std::string key_;
  std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<CommandUsage> GetUsage(CLI::App& app) {
  return std::make_unique<Get>(
      app.add_subcommand("get", "Prints one value of each drawing as it is."));
}

}  // namespace zdx

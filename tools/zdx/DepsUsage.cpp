#include <CLI/CLI.hpp>

#include "CommandUsage.h"
#include "CommandWords.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

constexpr const char* kExitCodesOfDeps =
    "Exit codes: 0 all files were walked, 1 with --missing: something is missing, 2 a file "
    "couldn't\n"
    "be walked or a service couldn't be asked (the rest was told), 64 wrong usage, 74 the output\n"
    "couldn't be written.";

// The module stands behind the first "=", so a version has none.
std::string CheckService(const std::string& word) {
  const std::string service = Unmarked(word);
  const std::size_t middle = service.find('=');
  if (middle != std::string::npos && middle > 0 && middle + 1 < service.size()) return {};
  return "'" + service + "' isn't VERSION=MODULE";
}

class Deps : public CommandUsage {
 public:
  explicit Deps(CLI::App* command) : CommandUsage(command) {
    AddOutputFormat(*command, format_, {"text", "json", "dot", "html"});
    command->add_flag("--direct", options_.wanted.directOnly,
                      "tell what each FILE itself refers to, and no further");
    command->add_flag("--overlays", options_.wanted.overlays, "tell which references are overlays");
    command->add_flag("--missing", options_.onlyMissing, "tell what is missing alone");
    command->add_flag("--tree", options_.nested,
                      "in JSON, put the references of a drawing into that drawing's");
    command
        ->add_option("--search-path", folders_,
                     "a folder to look for files in, behind those of PATH; may be given several "
                     "times")
        ->allow_extra_args(false)
        ->type_name("FOLDER");
    command
        ->add_option("--service", services_,
                     "ask a module for references that it alone knows; may be given several times")
        ->allow_extra_args(false)
        ->check(CheckService)
        ->type_name("VERSION=MODULE");
    AddFiles(*command, files_);
    command->footer(kExitCodesOfDeps);
  }

  Request Understood() const override {
    DepsOptions options = options_;
    options.format = OutputFormatOf(format_);
    for (const std::string& folder : folders_) {
      options.searchPath.push_back(ZDXEngine::WideFromUtf8(Unmarked(folder)));
    }
    for (const std::string& word : services_) {
      const std::string service = Unmarked(word);
      const std::size_t middle = service.find('=');
      const std::wstring version = ZDXEngine::WideFromUtf8(service.substr(0, middle));
      const std::wstring module = ZDXEngine::WideFromUtf8(service.substr(middle + 1));
      if (!options.wanted.services.emplace(version, module).second) {
        return Refusal("--service: there are two of the version '" + service.substr(0, middle) +
                       "'");
      }
    }
    options.files = FilesOf(files_);
    return options;
  }

 private:
  DepsOptions options_;
  std::string format_ = "text";
  std::vector<std::string> folders_;
  std::vector<std::string> services_;
  std::vector<std::string> files_;
};

}  // namespace

std::unique_ptr<CommandUsage> DepsUsage(CLI::App& app) {
  return std::make_unique<Deps>(
      app.add_subcommand("deps", "Tells which files drawings depend on."));
}

}  // namespace zdx

#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <iterator>

#include "CommandUsage.h"
#include "CommandWords.h"

namespace zdx {

namespace {

// The parser takes them from the back.
std::vector<std::string> ReversedArguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> reversed;
  std::transform(arguments.rbegin(), arguments.rend(), std::back_inserter(reversed), Marked);
  return reversed;
}

}  // namespace

bool CommandUsage::IsAskedFor() const { return command_->parsed(); }

Request ParseCommandLine(const std::vector<std::string>& arguments) {
  CLI::App app("Tells what CAD drawings say about themselves.", "zdx");
  // A name may begin with a slash on every system.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "zdx " ZDX_VERSION);
  // Not more than one, or a file with a command's name would count as a second command.
  app.require_subcommand(0, 1);
  app.footer("Run 'zdx COMMAND --help' for the options of a command.");
  const std::array commands = {InfoUsage(app),  BlocksUsage(app), GetUsage(app),
                               ThumbUsage(app), DepsUsage(app),   VersionUsage(app)};
  try {
    app.parse(ReversedArguments(arguments));
  } catch (const CLI::CallForHelp&) {
    return PrintAndLeave{app.help()};
  } catch (const CLI::CallForVersion& version) {
    return PrintAndLeave{std::string(version.what()) + "\n"};
  } catch (const CLI::ParseError& error) {
    return Refusal(error.what());
  }
  const auto* const command =
      std::find_if(commands.begin(), commands.end(),
                   [](const auto& candidate) { return candidate->IsAskedFor(); });
  if (command == commands.end()) return WrongUsage{app.help()};
  return (*command)->Understood();
}

}  // namespace zdx

// How each command is asked for: its options, and what they mean.
#pragma once

#include <memory>

#include "CommandLine.h"

namespace CLI {
class App;
}

namespace zdx {

class CommandUsage {
 public:
  CommandUsage(const CommandUsage&) = delete;
  CommandUsage& operator=(const CommandUsage&) = delete;
  virtual ~CommandUsage() = default;

  // Whether the command line, which was parsed, asks for this command.
  bool IsAskedFor() const;
  // What it asks for, if it asks for this command.
  virtual Request Understood() const = 0;

 protected:
  explicit CommandUsage(const CLI::App* command) : command_(command) {}

 private:
  const CLI::App* command_;
};

// Each adds its command to `app`, which fills in the object that is returned while it parses.
std::unique_ptr<CommandUsage> InfoUsage(CLI::App& app);
std::unique_ptr<CommandUsage> BlocksUsage(CLI::App& app);
std::unique_ptr<CommandUsage> GetUsage(CLI::App& app);
std::unique_ptr<CommandUsage> ThumbUsage(CLI::App& app);
std::unique_ptr<CommandUsage> DepsUsage(CLI::App& app);
std::unique_ptr<CommandUsage> VersionUsage(CLI::App& app);

}  // namespace zdx

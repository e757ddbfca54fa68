// The command-line tool: it only translates between a person or a program and the engine.
#include <exception>

#include "CommandLine.h"
#include "ExitCode.h"
#include "Failure.h"
#include "Messages.h"
#include "ReadableText.h"
#include "StandardStreams.h"
#include "SystemNames.h"

namespace {

struct Follow {
  int operator()(const zdx::InfoOptions& options) const { return zdx::RunInfo(options); }
  int operator()(const zdx::BlocksOptions& options) const { return zdx::RunBlocks(options); }
  int operator()(const zdx::GetOptions& options) const { return zdx::RunGet(options); }
  int operator()(const zdx::ThumbOptions& options) const { return zdx::RunThumb(options); }
  int operator()(const zdx::DepsOptions& options) const { return zdx::RunDeps(options); }
  int operator()(const zdx::VersionOptions& options) const { return zdx::RunVersion(options); }
  int operator()(const zdx::PrintAndLeave& print) const {
    return zdx::WriteOutput(print.text) ? zdx::kAllFilesRead : zdx::kOutputFailed;
  }
  int operator()(const zdx::WrongUsage& refusal) const {
    zdx::Write(zdx::Stream::kError, refusal.text);
    return zdx::kWrongUsage;
  }
};

}  // namespace

int main(int argc, char** argv) {
  zdx::PrepareStandardStreams();
  try {
    return std::visit(Follow{}, zdx::ParseCommandLine(zdx::ProgramArguments(argc, argv)));
  } catch (const std::exception&) {
    zdx::Complain(zdx::ReadableText(zdx::DescribeCurrentException().message));
  } catch (...) {
    zdx::Complain("an unexpected failure");
  }
  return zdx::kInternalFault;
}

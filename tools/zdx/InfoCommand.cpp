#include "InfoCommand.h"

#include "DrawingReport.h"
#include "EngineSession.h"
#include "ExitCode.h"
#include "JsonOutput.h"
#include "Messages.h"
#include "StandardStreams.h"
#include "TextOutput.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

// Tells files one after the other; each call returns false if the output can't be written.
class Teller {
 public:
  explicit Teller(OutputFormat format) : format_(format) {}

  bool Tell(const std::wstring& path, const DrawingReport& report) {
    if (format_ == OutputFormat::kJson) return WriteOutput(JsonOf(path, report));
    // An empty line between drawings, not behind the last.
    const std::string separator = toldBefore_ ? "\n" : "";
    toldBefore_ = true;
    if (!WriteOutput(separator + TextOf(path, report))) return false;
    ComplainAboutWarnings(report.diagnostics);
    return true;
  }

  bool Tell(const std::wstring& path, const Failure& failure) {
    ComplainAboutFailure(path, failure);
    return format_ == OutputFormat::kText || WriteOutput(JsonOf(path, failure));
  }

 private:
  OutputFormat format_;
  bool toldBefore_ = false;
};

}  // namespace

int RunInfo(const InfoOptions& options) {
  const EngineSession session;
  Teller teller(options.format);
  int exitCode = kAllFilesRead;
  for (const std::string& file : options.files) {
    const std::wstring path = ZDXEngine::WideFromUtf8(file);
    const auto result = ReadDrawing(path, options.selection);
    if (std::holds_alternative<Failure>(result)) exitCode = kFileFailed;
    const bool told = std::visit([&](const auto& what) { return teller.Tell(path, what); }, result);
    if (!told) return kOutputFailed;
  }
  return exitCode;
}

}  // namespace zdx

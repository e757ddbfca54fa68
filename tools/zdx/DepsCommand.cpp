#include "DepsCommand.h"

#include <algorithm>

#include "EngineSession.h"
#include "ExitCode.h"
#include "FileGraph.h"
#include "GraphDot.h"
#include "GraphHtml.h"
#include "Messages.h"
#include "ReadableText.h"
#include "StandardStreams.h"
#include "SystemPath.h"
#include "TellFiles.h"

namespace zdx {

namespace {

using Result = std::variant<DependencyReport, Failure>;

ZDXEngine::HostApplicationParam HostOf(const DepsOptions& options) {
  ZDXEngine::HostApplicationParam host;
  host.enableSupportFileSearch = true;
  for (const std::wstring& folder : options.searchPath) {
    if (!host.supportSearchPath.empty()) host.supportSearchPath += kPathsAreWide ? L';' : L':';
    host.supportSearchPath += folder;
  }
  return host;
}

// Says which services can't be had; the exit code that this alone would have.
int CheckServices(const ZDXEngine::ServiceModules& requested) {
  const ZDXEngine::ServiceModules absent = ServicesNotLoaded(requested);
  for (const auto& [version, module] : absent) {
    Complain("The service " + ReadableText(version) + " isn't asked: '" + ReadableText(module) +
             "' can't be loaded, or isn't a module of a service.");
  }
  return absent.empty() ? kAllFilesRead : kFileFailed;
}

// The graph of all files that could be walked.
int TellGraph(const DepsOptions& options, const auto& read) {
  FileGraph graph;
  int exitCode = kAllFilesRead;
  for (const std::string& file : options.files) {
    const std::wstring path = ZDXEngine::WideFromUtf8(file);
    const Result result = read(path);
    if (const auto* const failure = std::get_if<Failure>(&result)) {
      exitCode = kFileFailed;
      ComplainAboutFailure(path, *failure);
      continue;
    }
    const auto& report = std::get<DependencyReport>(result);
    graph.Add(report);
    ComplainAboutWarnings(report.diagnostics);
  }
  if (graph.Nodes().empty()) return exitCode;
  const bool isPage = options.format == OutputFormat::kHtml;
  return WriteOutput(isPage ? HtmlOf(graph) : DotOf(graph)) ? exitCode : kOutputFailed;
}

}  // namespace

int RunDeps(const DepsOptions& options) {
  const EngineSession session(HostOf(options));
  bool somethingIsMissing = false;
  const auto read = [&](const std::wstring& path) {
    Result result = ReadDependencies(path, options.wanted);
    if (auto* const report = std::get_if<DependencyReport>(&result)) {
      report->onlyMissing = options.onlyMissing;
      report->nested = options.nested;
      somethingIsMissing = somethingIsMissing || std::any_of(report->dependencies.begin(),
                                                             report->dependencies.end(), IsMissing);
    }
    return result;
  };
  const int ofServices = CheckServices(options.wanted.services);
  const bool isGraph =
      options.format == OutputFormat::kDot || options.format == OutputFormat::kHtml;
  const int ofFiles =
      isGraph ? TellGraph(options, read) : TellFiles(options.files, options.format, read);
  const int ofMissing = options.onlyMissing && somethingIsMissing ? kNothingThere : kAllFilesRead;
  return std::max({ofServices, ofFiles, ofMissing});
}

}  // namespace zdx

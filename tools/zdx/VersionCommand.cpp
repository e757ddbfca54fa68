#include "VersionCommand.h"

#include "DrawingFile.h"
#include "EngineSession.h"
#include "ExitCode.h"
#include "Messages.h"
#include "StandardStreams.h"
#include "VersionReport.h"
#include "ZDXEngine/FileReferenceMgr.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::FileReferenceMgr;

VersionReport Read(const std::wstring& path) {
  FileReferenceMgr& manager = FileReferenceMgr::Instance();
  const DrawingFile file(path);
  VersionReport report;
  report.current = manager.GetCurrentVersion();
  report.signature = manager.GetTerrane3DVersion(file.CalledName());
  try {
    report.lastSavedAs = manager.GetLastSavedAsFileVersion(file.CalledName());
  } catch (...) {
    report.failure = file.DescribeCurrentFailure();
  }
  return report;
}

}  // namespace

int RunVersion(const VersionOptions& options) {
  const EngineSession session;
  const bool inJson = options.format == OutputFormat::kJson;
  if (options.files.empty()) {
    const std::wstring current = FileReferenceMgr::Instance().GetCurrentVersion();
    return WriteOutput(inJson ? JsonOfTool(current) : TextOfTool(current)) ? kAllFilesRead
                                                                           : kOutputFailed;
  }
  int exitCode = kAllFilesRead;
  for (const std::string& file : options.files) {
    const std::wstring path = ZDXEngine::WideFromUtf8(file);
    const VersionReport report = Read(path);
    if (report.failure) {
      exitCode = kFileFailed;
      ComplainAboutFailure(path, *report.failure);
    }
    if (!WriteOutput(inJson ? JsonOf(path, report) : TextOf(path, report))) return kOutputFailed;
  }
  return exitCode;
}

}  // namespace zdx

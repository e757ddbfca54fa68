#include "GetCommand.h"

#include <algorithm>
#include <optional>

#include "EngineSession.h"
#include "ExitCode.h"
#include "Messages.h"
#include "NumberText.h"
#include "PropertyValue.h"
#include "ReadableText.h"
#include "StandardStreams.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

// A value as it is.  Nothing that a key means is bytes.
struct RawValue {
  using Text = std::optional<std::string>;

  Text operator()(std::monostate) const { return std::nullopt; }
  Text operator()(bool flag) const { return flag ? "true" : "false"; }
  Text operator()(double number) const { return NumberText(number); }
  Text operator()(std::wstring_view text) const { return ZDXEngine::Utf8FromWide(text); }
  Text operator()(std::span<const std::uint8_t>) const { return std::nullopt; }
};

// The lines that tell what `key` means; empty if the drawing doesn't have it.
std::string Lines(const PropertyKey& key, const DrawingReport& report) {
  std::string lines;
  for (const ZDXEngine::_PropData* const property : Find(key, report)) {
    const std::optional<std::string> value = std::visit(RawValue{}, ValueOf(*property));
    if (value) lines += *value + "\n";
  }
  return lines;
}

// Prints what is asked for of one file; returns the exit code that it alone would have.
int Print(const GetOptions& options, const std::wstring& path) {
  const auto result = ReadProperties(path, options.key.wanted);
  if (const auto* const failure = std::get_if<Failure>(&result)) {
    ComplainAboutFailure(path, *failure);
    return kFileFailed;
  }
  const auto& report = std::get<DrawingReport>(result);
  const std::string lines = Lines(options.key, report);
  if (!lines.empty() && !WriteOutput(lines)) return kOutputFailed;
  ComplainAboutWarnings(report.diagnostics);
  if (!lines.empty()) return kAllFilesRead;
  Complain(ReadableText(path) + ": There is no " +
           ReadableText(ZDXEngine::WideFromUtf8(options.word)) + ".");
  return kNothingThere;
}

}  // namespace

int RunGet(const GetOptions& options) {
  const EngineSession session;
  int exitCode = kAllFilesRead;
  for (const std::string& file : options.files) {
    const int code = Print(options, ZDXEngine::WideFromUtf8(file));
    if (code == kOutputFailed) return code;
    // That a file failed says more than that another has no such value.
    exitCode = std::max(exitCode, code);
  }
  return exitCode;
}

}  // namespace zdx

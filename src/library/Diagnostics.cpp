#include "ZDXEngine/Diagnostics.h"

#include <utility>

#include "backends/database/model/Report.h"

namespace ZDXEngine {
namespace {

std::vector<DiagnosticMessage> Messages(const std::vector<zdx::model::Finding>& findings) {
  std::vector<DiagnosticMessage> messages;
  messages.reserve(findings.size());
  for (const zdx::model::Finding& finding : findings) {
    messages.push_back({finding.text, {finding.offset, finding.line, finding.handle}});
  }
  return messages;
}

}  // namespace

Diagnostics Diagnostics::LastOpening() {
  zdx::model::Report report = zdx::model::Report::Last();
  Diagnostics diagnostics;
  diagnostics.path = std::move(report.path);
  diagnostics.format = std::move(report.format);
  diagnostics.version = std::move(report.version);
  diagnostics.codePage = std::move(report.codePage);
  diagnostics.errors = Messages(report.errors);
  diagnostics.warnings = Messages(report.warnings);
  diagnostics.warningCount = report.warningCount;
  return diagnostics;
}

}  // namespace ZDXEngine

#include "backends/database/model/Report.h"

#include <utility>

namespace zdx::model {
namespace {

std::shared_ptr<Report>& LastReport() {
  static std::shared_ptr<Report> last;
  return last;
}

}  // namespace

void Report::Warn(Finding finding) {
  // What is read twice is found twice.
  for (const Finding& known : warnings) {
    if (known.offset == finding.offset && known.text == finding.text) return;
  }
  ++warningCount;
  if (warnings.size() < kMostWarnings) warnings.push_back(std::move(finding));
}

std::shared_ptr<Report> Report::Begin(std::wstring path) {
  LastReport() = std::make_shared<Report>();
  LastReport()->path = std::move(path);
  return LastReport();
}

Report Report::Last() { return LastReport() == nullptr ? Report() : *LastReport(); }

}  // namespace zdx::model

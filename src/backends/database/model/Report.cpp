#include "backends/database/model/Report.h"

#include <utility>

namespace zdx::model {
namespace {

// Never destroyed: a client may ask while the process exits.
std::shared_ptr<Report>& LastReport() {
  static auto* const last = new std::shared_ptr<Report>();
  return *last;
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

KeptReport::KeptReport() : kept_(LastReport()) {}

KeptReport::~KeptReport() { LastReport() = std::move(kept_); }

}  // namespace zdx::model

#include "DependencyReport.h"

#include <string_view>
#include <unordered_set>

namespace zdx {

bool IsMissing(const DependencyRecord& record) {
  return record.detail.problem == ZDXEngine::DependencyProblem::NotFound;
}

FileCount CountFiles(const DependencyReport& report) {
  std::unordered_set<std::wstring_view> files = {report.root.file};
  FileCount count;
  for (const DependencyRecord& record : report.dependencies) {
    if (!files.insert(record.file).second) continue;
    ++count.all;
    if (IsMissing(record)) ++count.missing;
  }
  return count;
}

}  // namespace zdx

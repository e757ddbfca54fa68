#include <cstddef>
#include <utility>

#include "DependencyReport.h"
#include "DependencyTree.h"
#include "DependencyWords.h"
#include "JsonParts.h"
#include "ZDXEngine/Utf8.h"

namespace zdx {

namespace {

using ZDXEngine::Utf8FromWide;

Json RecordJson(const DependencyRecord& record) {
  return {{"refId", Utf8FromWide(record.refId)},
          {"sourcePath", Utf8FromWide(record.sourcePath)},
          {"absolutePath", Utf8FromWide(record.absolutePath)},
          {"fileType", record.fileType},
          {"supportRePath", record.supportRePath},
          {"isOverlay", record.isOverlay},
          {"exists", record.detail.exists}};
}

Json DependencyJson(const DependencyReport& report, const DependencyRecord& record) {
  const ZDXEngine::DependencyDetail& detail = record.detail;
  const DependencyRecord& parent =
      detail.parent ? report.dependencies[*detail.parent] : report.root;
  Json object = RecordJson(record);
  object["kind"] = KindKey(detail.kind);
  object["storedPath"] = Utf8FromWide(detail.storedPath);
  object["name"] = Utf8FromWide(detail.name);
  object["parent"] = Utf8FromWide(parent.refId);
  object["parentPath"] = Utf8FromWide(parent.sourcePath);
  object["unloaded"] = detail.isUnloaded;
  object["repeated"] = detail.isRepeated;
  if (detail.problem != ZDXEngine::DependencyProblem::None) {
    object["problem"] = ProblemKey(detail.problem);
  }
  if (!detail.reason.empty()) object["reason"] = Utf8FromWide(detail.reason);
  return object;
}

std::string ListText(const DependencyReport& report) {
  std::string list = "[";
  for (const DependencyRecord& record : report.dependencies) {
    if (report.onlyMissing && !IsMissing(record)) continue;
    if (list.size() > 1) list += ',';
    list += DependencyJson(report, record).dump();
  }
  return list + ']';
}

// As text, since the writer of JSON calls itself for each drawing of a chain.
std::string TreeText(const DependencyReport& report) {
  const std::vector<TreeEntry> tree = TreeOf(report);
  std::string text = "[";
  for (std::size_t i = 0; i < tree.size(); ++i) {
    const std::size_t depth = tree[i].depth;
    if (i > 0 && depth <= tree[i - 1].depth) {
      for (std::size_t open = tree[i - 1].depth + 1; open > depth; --open) text += "]}";
      text += ',';
    }
    text += DependencyJson(report, *tree[i].record).dump();
    text.back() = ',';
    text += "\"dependencies\":[";
  }
  for (std::size_t open = tree.empty() ? 0 : tree.back().depth + 1; open > 0; --open) text += "]}";
  return text + ']';
}

}  // namespace

std::string JsonOf(const std::wstring& path, const DependencyReport& report) {
  Json document = JsonDocument(path, "ok");
  document["drawingType"] = Utf8FromWide(report.drawingType);
  AddForm(document, report.diagnostics);
  document["root"] = RecordJson(report.root);
  return DocumentText(document, "dependencies", report.nested ? TreeText(report) : ListText(report),
                      report.diagnostics);
}

}  // namespace zdx

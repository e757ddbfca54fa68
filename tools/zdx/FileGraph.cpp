#include "FileGraph.h"

#include <optional>

#include "DependencyTree.h"
#include "DependencyWords.h"

namespace zdx {

namespace {

using ZDXEngine::DependencyKind;

bool IsOverlaid(const DependencyRecord& record) {
  return record.isOverlay || record.detail.kind == DependencyKind::OverlaidDrawing;
}

}  // namespace

std::size_t FileGraph::NodeOf(const DependencyRecord& record) {
  const auto [known, isNew] = places_.try_emplace(record.file, nodes_.size());
  if (isNew) {
    nodes_.push_back({record.sourcePath, false, IsMissing(record), record.detail.problem,
                      record.detail.reason, record.detail.kind});
  }
  return known->second;
}

// A drawing may be told by several reports, as the walked one of its own and below others.
void FileGraph::AddEdge(std::size_t from, std::size_t to, const DependencyRecord& record,
                        std::map<EdgeKey, std::size_t>& inReport) {
  const ZDXEngine::DependencyDetail& detail = record.detail;
  const EdgeKey key = {from, to, detail.kind, detail.name, detail.storedPath};
  if (++inReport[key] <= known_[key]) return;
  ++known_[key];
  edges_.push_back({from, to, detail.kind, detail.name, detail.storedPath, IsOverlaid(record),
                    detail.isUnloaded});
}

void FileGraph::Add(const DependencyReport& report) {
  const std::size_t root = NodeOf(report.root);
  nodes_[root].isRoot = true;
  std::vector<bool> shown(report.dependencies.size());
  for (const TreeEntry& entry : TreeOf(report)) {
    shown[static_cast<std::size_t>(entry.record - report.dependencies.data())] = true;
  }
  std::map<EdgeKey, std::size_t> inReport;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (!shown[i]) continue;
    const DependencyRecord& record = report.dependencies[i];
    const std::optional<std::size_t> parent = record.detail.parent;
    const std::size_t from = parent ? NodeOf(report.dependencies[*parent]) : root;
    AddEdge(from, NodeOf(record), record, inReport);
  }
}

std::string NoteOn(const GraphNode& node) {
  const std::string kind = node.isRoot ? "drawing" : KindText(node.kind);
  if (node.isMissing) return "missing " + kind;
  const std::string problem = ProblemText(node.problem);
  return problem.empty() ? kind : kind + ", " + problem;
}

std::wstring LeafOf(const std::wstring& path) {
  const std::size_t separator = path.find_last_of(L"/\\");
  if (separator == std::wstring::npos || separator + 1 == path.size()) return path;
  return path.substr(separator + 1);
}

}  // namespace zdx

// Drawings and the files that they refer to, as a graph.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "DependencyReport.h"

namespace zdx {

// A file.
struct GraphNode {
  std::wstring path;
  // Whether the graph was made of the report on it.
  bool isRoot = false;
  bool isMissing = false;
  ZDXEngine::DependencyProblem problem = ZDXEngine::DependencyProblem::None;
  std::wstring reason;
  // Of the first reference to it.
  ZDXEngine::DependencyKind kind = ZDXEngine::DependencyKind::AttachedDrawing;
};

// A reference of the file `from` to the file `to`, by their places among the nodes.
struct GraphEdge {
  std::size_t from = 0;
  std::size_t to = 0;
  ZDXEngine::DependencyKind kind = ZDXEngine::DependencyKind::Service;
  std::wstring name;
  std::wstring storedPath;
  bool isOverlay = false;
  bool isUnloaded = false;
};

class FileGraph {
 public:
  // Adds what a report tells: a node for each file and an edge for each reference that isn't there
  // yet.  Of a report that tells what is missing alone, what leads to it.
  void Add(const DependencyReport& report);

  const std::vector<GraphNode>& Nodes() const { return nodes_; }
  const std::vector<GraphEdge>& Edges() const { return edges_; }

 private:
  // The places of both nodes, kind, name and stored path.
  using EdgeKey =
      std::tuple<std::size_t, std::size_t, ZDXEngine::DependencyKind, std::wstring, std::wstring>;

  std::size_t NodeOf(const DependencyRecord& record);
  void AddEdge(std::size_t from, std::size_t to, const DependencyRecord& record,
               std::map<EdgeKey, std::size_t>& inReport);

  std::vector<GraphNode> nodes_;
  std::vector<GraphEdge> edges_;
  std::unordered_map<std::wstring, std::size_t> places_;
  // How many edges of that key there are.
  std::map<EdgeKey, std::size_t> known_;
};

// A few words on the file, fit for a terminal: "missing image", "attached drawing, damaged".
std::string NoteOn(const GraphNode& node);

// What follows the last "/" or "\" of a path; the whole if that is nothing.
std::wstring LeafOf(const std::wstring& path);

}  // namespace zdx

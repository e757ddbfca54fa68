#include "GraphLayout.h"

#include <algorithm>

namespace zdx {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// The files in the order in which they are reached, and from where each is first.
struct Reached {
  std::vector<std::size_t> order;
  std::vector<std::size_t> from;
};

Reached Reach(const FileGraph& graph) {
  const std::size_t count = graph.Nodes().size();
  std::vector<std::vector<std::size_t>> next(count);
  for (const GraphEdge& edge : graph.Edges()) next[edge.from].push_back(edge.to);
  Reached reached{{}, std::vector<std::size_t>(count, kNone)};
  std::vector<bool> seen(count);
  const auto see = [&](std::size_t node, std::size_t from) {
    if (seen[node]) return;
    seen[node] = true;
    reached.from[node] = from;
    reached.order.push_back(node);
  };
  for (std::size_t node = 0; node < count; ++node) {
    if (graph.Nodes()[node].isRoot) see(node, kNone);
  }
  for (std::size_t i = 0; i < reached.order.size(); ++i) {
    const std::size_t node = reached.order[i];
    for (const std::size_t target : next[node]) see(target, node);
  }
  return reached;
}

}  // namespace

std::vector<GraphPlace> LayOut(const FileGraph& graph) {
  const Reached reached = Reach(graph);
  // How many rows each file takes with what is reached from it.
  std::vector<std::size_t> inner(graph.Nodes().size(), 0);
  const auto rowsOf = [&](std::size_t node) { return std::max<std::size_t>(inner[node], 1); };
  for (std::size_t i = reached.order.size(); i-- > 0;) {
    const std::size_t node = reached.order[i];
    if (reached.from[node] != kNone) inner[reached.from[node]] += rowsOf(node);
  }
  std::vector<GraphPlace> places(graph.Nodes().size());
  std::vector<std::size_t> freeRow(graph.Nodes().size());
  std::size_t freeRootRow = 0;
  for (const std::size_t node : reached.order) {
    const std::size_t from = reached.from[node];
    std::size_t& row = from == kNone ? freeRootRow : freeRow[from];
    places[node] = {from == kNone ? 0 : places[from].column + 1, row};
    freeRow[node] = row;
    row += rowsOf(node);
  }
  return places;
}

}  // namespace zdx

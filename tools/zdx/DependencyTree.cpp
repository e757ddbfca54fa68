#include "DependencyTree.h"

#include <optional>

namespace zdx {

namespace {

using Flags = std::vector<bool>;

Flags ShownIn(const DependencyReport& report) {
  Flags shown(report.dependencies.size(), !report.onlyMissing);
  // A parent stands before what it refers to.
  for (std::size_t i = shown.size(); i-- > 0 && report.onlyMissing;) {
    const DependencyRecord& record = report.dependencies[i];
    if (IsMissing(record)) shown[i] = true;
    if (shown[i] && record.detail.parent) shown[*record.detail.parent] = true;
  }
  return shown;
}

// By the place of the parent and one more, the walked drawing's first: what it refers to, from the
// last to the first.
using Children = std::vector<std::vector<std::size_t>>;

Children ChildrenIn(const DependencyReport& report) {
  const Flags shown = ShownIn(report);
  Children children(shown.size() + 1);
  for (std::size_t i = shown.size(); i-- > 0;) {
    const std::optional<std::size_t> parent = report.dependencies[i].detail.parent;
    if (shown[i]) children[parent ? *parent + 1 : 0].push_back(i);
  }
  return children;
}

}  // namespace

// A chain of drawings may be longer than a stack is deep.
std::vector<TreeEntry> TreeOf(const DependencyReport& report) {
  const Children children = ChildrenIn(report);
  struct Waiting {
    std::size_t place;
    std::size_t depth;
    bool isLast;
  };
  std::vector<Waiting> waiting;
  const auto await = [&](const std::vector<std::size_t>& places, std::size_t depth) {
    for (const std::size_t place : places) {
      waiting.push_back({place, depth, place == places.front()});
    }
  };
  await(children[0], 0);
  std::vector<TreeEntry> tree;
  while (!waiting.empty()) {
    const Waiting next = waiting.back();
    waiting.pop_back();
    tree.push_back({&report.dependencies[next.place], next.depth, next.isLast});
    await(children[next.place + 1], next.depth + 1);
  }
  return tree;
}

}  // namespace zdx

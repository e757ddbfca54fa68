#include "backends/walker/EmbeddedDepends.h"

#include <utility>

#include "backends/walker/Walk.h"

namespace zdx::walker {

EmbeddedDepends::EmbeddedDepends(std::unique_ptr<Surroundings> surroundings, std::wstring path,
                                 ZnDwgDepends::DwgDependsSettings settings, bool directOnly)
    : surroundings_(std::move(surroundings)),
      path_(std::move(path)),
      settings_(settings),
      directOnly_(directOnly) {}

// Nodes that are the caller's may be gone already.
EmbeddedDepends::~EmbeddedDepends() {
  if (deletesNodes_ || !isRootRead_) return;
  for (std::unique_ptr<Node>& node : nodes_) static_cast<void>(node.release());
}

bool EmbeddedDepends::getDependencies(std::vector<ZnDwgDepends::File*>& files, bool /*all*/) {
  files.clear();
  if (std::exchange(hasWalked_, true)) return false;
  std::vector<std::unique_ptr<Node>> nodes =
      WalkDrawing(*surroundings_, path_, settings_, directOnly_);
  errors_ = ErrorsOf(nodes);
  files.reserve(nodes.size());
  for (const std::unique_ptr<Node>& node : nodes) files.push_back(node.get());
  isRootRead_ = nodes.front()->facts().condition == ErrorCondition::kNoError;
  nodes_ = std::move(nodes);
  return true;
}

bool EmbeddedDepends::getErrorInfos(std::vector<ZnDwgDepends::DwgDepends::ErrorInfo>& errors) {
  errors = errors_;
  return true;
}

}  // namespace zdx::walker

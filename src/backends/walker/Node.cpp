#include "backends/walker/Node.h"

#include "backends/walker/FileKinds.h"

namespace zdx::walker {

void Node::Fail(ErrorCondition condition, std::wstring reason) {
  facts_.condition = condition;
  facts_.reason = std::move(reason);
}

ZnDwgDepends::FileType Node::fileType() const { return KindOf(facts_.use).type; }

bool Node::getDependents(std::vector<ZnDwgDepends::File*>& dependents, bool all) const {
  dependents = dependents_;
  if (!all) return true;
  for (std::size_t at = 0; at < dependents.size(); ++at) {
    const std::vector<ZnDwgDepends::File*>& below = dependents[at]->getDirectDependents();
    dependents.insert(dependents.end(), below.begin(), below.end());
  }
  return true;
}

}  // namespace zdx::walker

#include "backends/walker/Walk.h"

#include <set>
#include <unordered_set>
#include <utility>

#include "backends/database/model/Report.h"
#include "backends/walker/FileKinds.h"
#include "backends/walker/Ids.h"
#include "backends/walker/Search.h"
#include "base/CaseFold.h"

namespace zdx::walker {
namespace {

class Walk {
 public:
  Walk(Surroundings& surroundings, ZnDwgDepends::DwgDependsSettings settings)
      : surroundings_(surroundings), search_(surroundings), settings_(settings) {}

  std::vector<std::unique_ptr<Node>> Run(const std::wstring& path, bool directOnly);

 private:
  bool StartAt(const std::wstring& path);
  void Follow(Node& node);
  void AddReferences(Node& parent, Reading& reading);
  void AddNode(Node& parent, model::FileReference& reference, ZnDbDatabase* asking);
  bool Claim(const Node& parent, FileFacts& facts);
  std::wstring IdentityOf(const std::wstring& path);

  Surroundings& surroundings_;
  Search search_;
  const ZnDwgDepends::DwgDependsSettings settings_;
  Ids ids_;
  std::vector<std::unique_ptr<Node>> nodes_;
  // Drawings whose references hang, or are going to hang, under a node.
  std::unordered_set<std::wstring> claimed_;
  std::vector<Node*> toFollow_;
};

std::vector<std::unique_ptr<Node>> Walk::Run(const std::wstring& path, bool directOnly) {
  if (!StartAt(path) || directOnly) return std::move(nodes_);
  const model::KeptReport report;
  for (std::size_t at = 0; at < toFollow_.size(); ++at) Follow(*toFollow_[at]);
  return std::move(nodes_);
}

bool Walk::StartAt(const std::wstring& path) {
  FileFacts facts;
  facts.filename = path;
  Node& root = *nodes_.emplace_back(std::make_unique<Node>(std::move(facts)));
  Reading reading = surroundings_.Read(path);
  if (reading.condition != ErrorCondition::kNoError) {
    root.Fail(reading.condition, std::move(reading.reason));
    return false;
  }
  claimed_.insert(IdentityOf(path));
  AddReferences(root, reading);
  root.Keep(std::move(reading.database));
  return true;
}

void Walk::Follow(Node& node) {
  Reading reading = surroundings_.Read(node.facts().filename);
  if (reading.condition == ErrorCondition::kNoError) {
    AddReferences(node, reading);
  } else {
    node.Fail(reading.condition, std::move(reading.reason));
  }
}

void Walk::AddReferences(Node& parent, Reading& reading) {
  std::set<std::pair<model::FileUse, std::wstring>> shared;
  for (model::FileReference& reference : reading.references) {
    if (!IsListed(reference, settings_)) continue;
    if (KindOf(reference.use).isShared && (settings_ & kNodeForEachRecord) == 0 &&
        !shared.emplace(reference.use, FoldCase(reference.path)).second) {
      continue;
    }
    AddNode(parent, reference, reading.database.get());
  }
}

void Walk::AddNode(Node& parent, model::FileReference& reference, ZnDbDatabase* asking) {
  std::wstring found = search_.Look(reference, parent.facts().filename, asking);
  FileFacts facts;
  facts.use = reference.use;
  facts.isFound = !found.empty();
  facts.filename = facts.isFound ? std::move(found) : reference.path;
  facts.storedPath = std::move(reference.path);
  facts.name = std::move(reference.name);
  facts.id = ids_.Take(reference.handle);
  facts.parent = &parent;
  facts.isUnloaded = reference.isUnloaded;
  if (!facts.isFound && !IsAddress(facts.storedPath)) facts.condition = ErrorCondition::kNotFound;
  const bool isClaimed = facts.isFound && IsDrawing(facts.use) && Claim(parent, facts);
  Node& node = *nodes_.emplace_back(std::make_unique<Node>(std::move(facts)));
  parent.Add(node);
  if (isClaimed) toFollow_.push_back(&node);
}

// Whether the drawing is to be opened for this reference.
bool Walk::Claim(const Node& parent, FileFacts& facts) {
  std::wstring identity = IdentityOf(facts.filename);
  facts.isRepeated = claimed_.count(identity) != 0;
  const bool isInnerOverlay =
      facts.use == model::FileUse::kOverlaidDrawing && parent.facts().parent != nullptr;
  if (facts.isRepeated || (isInnerOverlay && (settings_ & kFollowInnerOverlays) == 0)) {
    return false;
  }
  claimed_.insert(std::move(identity));
  return true;
}

// A file that went away since it was found is told apart by its name.
std::wstring Walk::IdentityOf(const std::wstring& path) {
  std::wstring identity = surroundings_.Identity(path);
  return identity.empty() ? path : identity;
}

}  // namespace

std::vector<std::unique_ptr<Node>> WalkDrawing(Surroundings& surroundings, const std::wstring& path,
                                               ZnDwgDepends::DwgDependsSettings settings,
                                               bool directOnly) {
  return Walk(surroundings, settings).Run(path, directOnly);
}

std::vector<ZnDwgDepends::DwgDepends::ErrorInfo> ErrorsOf(
    const std::vector<std::unique_ptr<Node>>& nodes) {
  std::vector<ZnDwgDepends::DwgDepends::ErrorInfo> errors;
  for (const auto& node : nodes) {
    const FileFacts& facts = node->facts();
    if (facts.condition == ErrorCondition::kNoError) continue;
    if (facts.parent != nullptr &&
        CompareIgnoringCase(facts.filename, nodes.front()->facts().filename) == 0) {
      continue;
    }
    errors.emplace_back(facts.filename, facts.condition);
  }
  return errors;
}

}  // namespace zdx::walker

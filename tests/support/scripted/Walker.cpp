#include "support/scripted/Walker.h"

#include <new>
#include <sstream>

#include "platform/zndb/ZnDbDatabase.h"

namespace scripted {
namespace {

std::string MaskInWords(ZnDwgDepends::DwgDependsSettings mask) {
  std::ostringstream words;
  words << "0x" << std::hex << mask;
  return words.str();
}

}  // namespace

template <class Base>
class Walker::Node : public Base {
 public:
  Node(CallLog& calls, Ledger& ledger, const WalkedFile& file)
      : calls_(calls), ledger_(ledger), file_(file) {
    ledger_.Acquire(this, "node " + file_.label);
    if (file_.hasDatabase) database_.emplace(false, true);
  }

  // Deleting a node leaves its memory where it is, so that the ledger sees what is deleted twice.
  static void operator delete(Node* node, std::destroying_delete_t) {
    node->calls_.Record(node->file_.label, "delete");
    if (node->ledger_.Release(node, "node " + node->file_.label)) node->database_.reset();
  }

  const wchar_t* filename() const override {
    Record("filename");
    return file_.filename.c_str();
  }
  ZnDwgDepends::FileType fileType() const override {
    Record("fileType");
    const bool isLater = timesAskedForType_++ != 0;
    return isLater ? file_.laterFileType.value_or(file_.fileType) : file_.fileType;
  }
  const std::vector<ZnDwgDepends::File*>& getDirectDependents() const override {
    Record("getDirectDependents");
    return dependents;
  }
  const ZnDbDatabase* database() const override {
    Record("database");
    return database_ ? &*database_ : nullptr;
  }
  std::uint64_t xrefId() const override {
    Record("xrefId");
    return file_.xrefId;
  }
  bool GetDependents(std::vector<ZnDwgDepends::File*>& files, bool all) const {
    const Outcome outcome = Record("getDependents", Arguments(all));
    files = dependents;
    return !outcome.null;
  }

  std::vector<ZnDwgDepends::File*> dependents;

 private:
  Outcome Record(std::string_view operation, std::string_view arguments = {}) const {
    if (!ledger_.IsOut(this)) ledger_.Misuse("called after its end: node " + file_.label);
    return calls_.Record(file_.label, operation, arguments);
  }

  CallLog& calls_;
  Ledger& ledger_;
  const WalkedFile& file_;
  std::optional<ZnDbDatabase> database_;
  mutable int timesAskedForType_ = 0;
};

struct Walker::Nodes {
  class OfWalk : public Node<ZnDwgDepends::DwgFile> {
   public:
    using Node::Node;
    bool getDependents(std::vector<ZnDwgDepends::File*>& files, bool all) const override {
      return GetDependents(files, all);
    }
  };
  using OfAnotherClass = Node<ZnDwgDepends::File>;

  std::deque<OfWalk> ofWalk;
  std::deque<OfAnotherClass> ofAnotherClass;
};

class Walker::Walk : public ZnDwgDepends::DependsBody {
 public:
  explicit Walk(Walker& walker) : walker_(walker) { walker_.ledger_.Acquire(this, "walk"); }
  ~Walk() override {
    walker_.calls_.Record("", "~DwgDepends");
    walker_.ledger_.Release(this, "walk");
    if (!deletesRoot_) return;
    for (const auto& [file, node] : walker_.nodeOf_) {
      if (walker_.IsAlive(*file)) delete node;
    }
  }

  void setDeleteRoot(bool deletes) override {
    walker_.calls_.Record("", "setDeleteRoot", Arguments(deletes));
    deletesRoot_ = deletes;
  }
  bool getDependencies(std::vector<ZnDwgDepends::File*>& files, bool all) override {
    const Outcome outcome = walker_.calls_.Record("", "getDependencies", Arguments(all));
    for (const WalkedFile* const file : walker_.found_) {
      files.push_back(file == nullptr ? nullptr : walker_.NodeOf(*file));
    }
    return !outcome.null;
  }
  bool getErrorInfos(std::vector<ZnDwgDepends::DwgDepends::ErrorInfo>& errors) override {
    const Outcome outcome = walker_.calls_.Record("", "getErrorInfos");
    errors = walker_.errors;
    return !outcome.null;
  }

 private:
  Walker& walker_;
  bool deletesRoot_ = true;
};

Walker::Walker(CallLog& calls, Ledger& ledger)
    : calls_(calls), ledger_(ledger), nodes_(std::make_unique<Nodes>()) {}

Walker::~Walker() = default;

WalkedFile& Walker::AddUnlisted(std::string label, std::wstring filename, int fileType,
                                std::uint64_t xrefId) {
  WalkedFile& file = files_.emplace_back();
  file.label = std::move(label);
  file.filename = std::move(filename);
  file.fileType = fileType;
  file.xrefId = xrefId;
  return file;
}

WalkedFile& Walker::Add(std::string label, std::wstring filename, int fileType,
                        std::uint64_t xrefId) {
  WalkedFile& file = AddUnlisted(std::move(label), std::move(filename), fileType, xrefId);
  found_.push_back(&file);
  return file;
}

ZnDwgDepends::File* Walker::NewNode(const WalkedFile& file) {
  ZnDwgDepends::File* node = nullptr;
  if (file.isDwgFile) {
    node = &nodes_->ofWalk.emplace_back(calls_, ledger_, file);
  } else {
    node = &nodes_->ofAnotherClass.emplace_back(calls_, ledger_, file);
  }
  nodeOf_[&file] = node;
  return node;
}

// Those below are made in a loop, since a chain may be long.
ZnDwgDepends::File* Walker::NodeOf(const WalkedFile& top) {
  const auto known = nodeOf_.find(&top);
  if (known != nodeOf_.end()) return known->second;
  ZnDwgDepends::File* const topNode = NewNode(top);
  std::vector<const WalkedFile*> open = {&top};
  while (!open.empty()) {
    const WalkedFile& file = *open.back();
    open.pop_back();
    auto* const node = dynamic_cast<Nodes::OfWalk*>(nodeOf_.at(&file));
    for (const WalkedFile* const dependent : file.dependents) {
      const bool isNew = dependent != nullptr && !nodeOf_.contains(dependent);
      if (isNew) {
        NewNode(*dependent);
        open.push_back(dependent);
      }
      node->dependents.push_back(dependent == nullptr ? nullptr : nodeOf_.at(dependent));
    }
  }
  return topNode;
}

ZnDwgDepends::DwgFile* Walker::DwgFileOf(const WalkedFile& file) {
  return dynamic_cast<ZnDwgDepends::DwgFile*>(NodeOf(file));
}

bool Walker::IsAlive(const WalkedFile& file) const {
  const auto node = nodeOf_.find(&file);
  if (node == nodeOf_.end()) return false;
  return ledger_.IsOut(dynamic_cast<const void*>(node->second));
}

bool Walker::initializeEconveyEngine() {
  return !calls_.Record("", "initializeEconveyEngine").null;
}

bool Walker::unInitializeEconveyEngine() {
  return !calls_.Record("", "unInitializeEconveyEngine").null;
}

std::unique_ptr<ZnDwgDepends::DependsBody> Walker::createDepends(
    const wchar_t* path, ZnDwgDepends::DwgDependsSettings settings, const wchar_t* reserved1,
    const wchar_t* reserved2, bool directOnly, bool keepsDatabase) {
  calls_.Record("", "DwgDepends",
                Arguments(path, MaskInWords(settings), "\"" + Shown(reserved1) + "\"",
                          "\"" + Shown(reserved2) + "\"", directOnly, keepsDatabase));
  return std::make_unique<Walk>(*this);
}

}  // namespace scripted

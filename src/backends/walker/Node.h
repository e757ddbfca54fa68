// What a walk finds out about one file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "backends/database/model/Drawing.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace zdx::walker {

using ErrorCondition = ZnDwgDepends::DwgDepends::ErrorCondition;

class Node;

struct FileFacts {
  // Of the walked drawing as if it were attached, and all texts but the file's name empty.
  model::FileUse use = model::FileUse::kAttachedDrawing;
  std::wstring storedPath;
  // Of the record that refers to the file.
  std::wstring name;
  // As File::filename tells it.
  std::wstring filename;
  std::uint64_t id = 0;
  // Whose drawing refers to the file; null for the walked drawing.  Valid as long as that node.
  const Node* parent = nullptr;
  bool isFound = false;
  bool isUnloaded = false;
  // A drawing that has a node before this one, where what it refers to hangs.
  bool isRepeated = false;
  ErrorCondition condition = ErrorCondition::kNoError;
  // A sentence, if the drawing was opened in vain.
  std::wstring reason;
};

// Nodes are deleted in any order: none touches another when it goes.
class Node final : public ZnDwgDepends::DwgFile {
 public:
  explicit Node(FileFacts facts) : facts_(std::move(facts)) {}

  const FileFacts& facts() const { return facts_; }
  void Add(Node& dependent) { dependents_.push_back(&dependent); }
  // Takes over the drawing that was opened for this node.
  void Keep(std::unique_ptr<ZnDbDatabase> database) { database_ = std::move(database); }
  // Notes why the drawing can't be read.
  void Fail(ErrorCondition condition, std::wstring reason);

  const wchar_t* filename() const override { return facts_.filename.c_str(); }
  ZnDwgDepends::FileType fileType() const override;
  const std::vector<ZnDwgDepends::File*>& getDirectDependents() const override {
    return dependents_;
  }
  const ZnDbDatabase* database() const override { return database_.get(); }
  std::uint64_t xrefId() const override { return facts_.id; }
  // Breadth first; always true.
  bool getDependents(std::vector<ZnDwgDepends::File*>& dependents, bool all) const override;

 private:
  FileFacts facts_;
  std::vector<ZnDwgDepends::File*> dependents_;
  std::unique_ptr<ZnDbDatabase> database_;
};

}  // namespace zdx::walker

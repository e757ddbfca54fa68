// The dependency-walking library of a scripted world.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/econvey/ZnDwgDepends.h"
#include "support/scripted/CallLog.h"
#include "support/scripted/Ledger.h"

namespace scripted {

// What a node of a walk tells.
struct WalkedFile {
  // How calls on the node are told.
  std::string label;
  std::wstring filename;
  int fileType = 0;
  // What fileType answers from its second call on; the same if nullopt.
  std::optional<int> laterFileType;
  std::uint64_t xrefId = 0;
  // Who hangs under it; an entry may be null.
  std::vector<WalkedFile*> dependents;
  // True: the node owns an open database.
  bool hasDatabase = false;
  // False: the node is of another class than those of a walk.
  bool isDwgFile = true;
};

class Walker : public ZnDwgDepends::Provider {
 public:
  Walker(CallLog& calls, Ledger& ledger);
  ~Walker() override;

  // A file that a walk finds: the walked drawing first.
  WalkedFile& Add(std::string label, std::wstring filename, int fileType = 0,
                  std::uint64_t xrefId = 0);
  // Places in the list that a walk gives: one that is null, and one more of the node of `file`.
  void AddNull() { found_.push_back(nullptr); }
  void AddAgain(const WalkedFile& file) { found_.push_back(&file); }
  // A file that hangs under others, but isn't in the list that a walk gives.
  WalkedFile& AddUnlisted(std::string label, std::wstring filename, int fileType = 0,
                          std::uint64_t xrefId = 0);
  // What getErrorInfos tells.
  std::vector<ZnDwgDepends::DwgDepends::ErrorInfo> errors;

  // The one node that stands for `file`.  It is handed out from the first time on that a walk, or a
  // test by this, asks for it, together with those below; whoever deletes one releases it alone.
  ZnDwgDepends::File* NodeOf(const WalkedFile& file);
  // The same for a file of the class of a walk's nodes.
  ZnDwgDepends::DwgFile* DwgFileOf(const WalkedFile& file);
  // Whether the node was handed out and not deleted.
  bool IsAlive(const WalkedFile& file) const;

  // A script that gives null makes them answer false.
  bool initializeEconveyEngine() override;
  bool unInitializeEconveyEngine() override;
  std::unique_ptr<ZnDwgDepends::DependsBody> createDepends(
      const wchar_t* path, ZnDwgDepends::DwgDependsSettings settings, const wchar_t* reserved1,
      const wchar_t* reserved2, bool directOnly, bool keepsDatabase) override;

 private:
  class Walk;
  template <class Base>
  class Node;
  struct Nodes;

  ZnDwgDepends::File* NewNode(const WalkedFile& file);

  CallLog& calls_;
  Ledger& ledger_;
  std::deque<WalkedFile> files_;
  std::vector<const WalkedFile*> found_;
  // Where nodes stand, deleted or not, until the world ends.
  std::unique_ptr<Nodes> nodes_;
  std::map<const WalkedFile*, ZnDwgDepends::File*> nodeOf_;
};

}  // namespace scripted

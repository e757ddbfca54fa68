// The objects that the stand-in hands out, one for each opening.
#pragma once

#include <set>

#include "platform/zndb/ZnDbObjects.h"
#include "support/scripted/CallLog.h"
#include "support/scripted/Drawing.h"
#include "support/scripted/Ledger.h"

namespace scripted {

// Keeps every object handed out until the world ends, because a pointer to an object stays valid as
// long as its database.  An object without an id is the engine's to delete, and any other isn't.
class OpenObjects {
 public:
  OpenObjects(CallLog& calls, Ledger& ledger) : calls_(calls), ledger_(ledger) {}
  ~OpenObjects();
  OpenObjects(const OpenObjects&) = delete;
  OpenObjects& operator=(const OpenObjects&) = delete;

  CallLog& Log() { return calls_; }
  Ledger& Books() { return ledger_; }

  // A new object for `node`, open for read.
  ZnDbObject* Open(const Node& node);

  // What the objects tell about themselves.
  void Closed(const ZnDbObject* object, const Node& node);
  void Deleted(ZnDbObject* object, const Node& node);

 private:
  CallLog& calls_;
  Ledger& ledger_;
  std::set<ZnDbObject*> objects_;
  bool ending_ = false;
};

ZnDbObjectId IdOf(const Node& node);
// The class of the objects that `node` gives; null if it isn't known.
ZnRxClass* ClassOf(const Node& node);
// The class `name` below `parent`, the same each time; it lives as long as the process.
ZnRxClass* DescriptorNamed(const std::wstring& name, const ZnRxClass* parent);
// Null for the null id.
const Node* NodeOf(ZnDbObjectId id);
// "null" for the null id.
std::string LabelOf(ZnDbObjectId id);

}  // namespace scripted

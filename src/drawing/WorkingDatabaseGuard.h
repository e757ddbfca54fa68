// Makes a database the working one for the length of a save.
#pragma once

#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Switches the working database to `database` if the library runs in this engine's kind of host or
// has no working database, and `database` isn't the working one already.  Switches back at the end
// of the scope, also when an exception passes.
class WorkingDatabaseGuard {
 public:
  explicit WorkingDatabaseGuard(ZnDbDatabase* database);
  ~WorkingDatabaseGuard();
  WorkingDatabaseGuard(const WorkingDatabaseGuard&) = delete;
  WorkingDatabaseGuard& operator=(const WorkingDatabaseGuard&) = delete;

 private:
  ZnDbDatabase* previousDatabase = nullptr;
  bool switched = false;
};

}  // namespace ZDXEngine

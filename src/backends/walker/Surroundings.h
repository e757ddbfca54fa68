// What a walk asks of the world: drawings and files.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backends/database/model/Drawing.h"
#include "backends/walker/Node.h"

namespace zdx::walker {

// A drawing that was opened, or why it wasn't.
struct Reading {
  ErrorCondition condition = ErrorCondition::kNoError;
  // A sentence about a failure; may be empty.
  std::wstring reason;
  // Null after a failure.
  std::unique_ptr<ZnDbDatabase> database;
  std::vector<model::FileReference> references;
};

class Surroundings {
 public:
  virtual ~Surroundings() = default;
  virtual Reading Read(const std::wstring& path) = 0;
  // The path of the file `name` that the drawing `asking` names, in the system's own form; empty if
  // it isn't found.  `hint` as findFile takes it.  May throw whatever the host throws.
  virtual std::wstring Find(const std::wstring& name, ZnDbDatabase* asking, int hint) = 0;
  // As zdx::FileIdentity.
  virtual std::wstring Identity(const std::wstring& path) = 0;
};

}  // namespace zdx::walker

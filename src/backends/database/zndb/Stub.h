// What the database keeps about one object that somebody has an id of.
#pragma once

#include <memory>
#include <optional>

#include "backends/database/model/Drawing.h"
#include "platform/zndb/ZnDbObjects.h"

namespace zdx::database {
class EmbeddedDatabase;
}  // namespace zdx::database

class ZnDbStub {
 public:
  // A record of a symbol table.
  ZnDbStub(zdx::database::EmbeddedDatabase* database, zdx::model::TableKind kind,
           zdx::model::ObjectKey place)
      : owner(database), table(kind), key(place) {}
  // Any other object whose place is known.
  ZnDbStub(zdx::database::EmbeddedDatabase* database, zdx::model::ObjectKey place)
      : owner(database), key(place) {}
  // An object that others name by its handle, or a table (handle 0).
  ZnDbStub(zdx::database::EmbeddedDatabase* database, zdx::model::Handle number)
      : owner(database), handle(number) {}

  zdx::database::EmbeddedDatabase* owner;
  // The table of a record.
  std::optional<zdx::model::TableKind> table;
  // Where the object is; not known before an object named by a handle is opened.
  std::optional<zdx::model::ObjectKey> key;
  zdx::model::Handle handle = 0;
  // Made at the first opening; lives as long as the database, since close() may come twice.
  std::unique_ptr<ZnDbObject> object;
};

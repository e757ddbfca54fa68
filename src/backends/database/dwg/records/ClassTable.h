// The classes that a drawing declares.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "backends/database/dwg/container/Container.h"
#include "backends/database/dwg/records/Format.h"
#include "backends/database/dwg/records/ObjectTypes.h"
#include "backends/database/model/Report.h"

namespace zdx::dwg {

struct DeclaredClass {
  // As stored: bytes of the code page, or UTF-16 with the low byte first.
  std::string className;
  bool isEntity = false;
  // The type whose records those of the class are like, if that is known.
  std::optional<ObjectType> like;
};

class ClassTable {
 public:
  ClassTable() = default;
  ClassTable(Section& section, Format format, model::Report& report);

  // Null if no class has that number.
  const DeclaredClass* Find(ObjectType number) const;
  // Whether there is a class whose records are like those of `type`.
  bool HasLike(ObjectType type) const;

 private:
  std::map<ObjectType, DeclaredClass> classes_;
};

}  // namespace zdx::dwg

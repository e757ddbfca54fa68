#include "backends/database/model/Drawing.h"

#include "base/CaseFold.h"

namespace zdx::model {

bool Drawing::HasName(TableKind table, ObjectKey record, const std::wstring& name) {
  const std::optional<std::wstring> found = RecordName(table, record);
  return found && CompareIgnoringCase(*found, name) == 0;
}

}  // namespace zdx::model

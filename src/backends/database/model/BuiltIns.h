// What every drawing has of its own, and the one order in which both formats tell it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "backends/database/model/Drawing.h"

namespace zdx::model {

// Puts ByBlock and ByLayer, or the blocks of model and paper space, before the other records of
// `table`, which keep their order.  `nameOf` gives the name of a record, or nullopt if it has none.
void PutBuiltInsFirst(TableKind table, std::vector<ObjectKey>& records,
                      const std::function<std::optional<std::wstring>(ObjectKey record)>& nameOf);

// The name of the block that draws the arrow `text`.  Some drawings leave out the underscore with
// which the names of the built-in arrow blocks begin; `spelling` gives the block table's own
// spelling of a name, or an empty text if it has no such block.
std::wstring ArrowBlockName(std::wstring_view text,
                            const std::function<std::wstring(const std::wstring& name)>& spelling);

}  // namespace zdx::model

// From a path to a drawing, whatever its format.
#pragma once

#include <memory>
#include <string>

#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"
#include "platform/zndb/Status.h"

namespace zdx::database {

// Which formats the caller takes.
enum class Wanted { kDwg, kDxf, kAny };

// A drawing, or null and the status that says why.
struct OpenedDrawing {
  std::unique_ptr<model::Drawing> drawing;
  Zent::ErrorStatus status = Zent::kOk;
};

// Opens the file at `path`, whose contents say what it is.  What is found goes to `report`: the
// reason of a failure among the errors.
OpenedDrawing OpenDrawingFile(const std::wstring& path, Wanted wanted,
                              const std::shared_ptr<model::Report>& report);

}  // namespace zdx::database

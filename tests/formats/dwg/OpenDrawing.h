// Drawings opened from bytes, as the database opens them.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backends/database/model/Drawing.h"
#include "backends/database/model/Report.h"
#include "support/drawing/DrawingSpec.h"

struct OpenDrawing {
  explicit OpenDrawing(const std::string& bytes);
  explicit OpenDrawing(const drawing::DrawingSpec& spec);

  zdx::model::Drawing& operator*() { return *drawing; }
  zdx::model::Drawing* operator->() { return drawing.get(); }

  std::vector<std::string> BlockNames();
  // Throws if the drawing has no block of that name.
  zdx::model::ObjectKey Block(const std::wstring& name);

  std::shared_ptr<zdx::model::Report> report;
  std::unique_ptr<zdx::model::Drawing> drawing;
};

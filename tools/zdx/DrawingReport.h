// What was read of one file.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "BlockFilter.h"
#include "Failure.h"
#include "Selection.h"
#include "ZDXEngine/Diagnostics.h"
#include "ZDXEngine/PropData.h"

namespace zdx {

// What is to be read.
struct Wanted {
  Selection selection = ZDXEngine::FilePropertyMgr::AllProperties;
  // Their values are read whether `selection` includes blocks or not.
  std::vector<BlockFilter> blocks;
};

// A drawing that was read.
struct DrawingReport {
  // What the engine gave, in its order.
  std::vector<ZDXEngine::_PropData> properties;
  // The blocks that were asked for, and how many of the properties, all at the end, are values of
  // theirs.
  std::vector<BlockFilter> blocks;
  std::size_t blockValueCount = 0;
  // Empty but for its path if the engine tells of another opening.
  ZDXEngine::Diagnostics diagnostics;
  // The text of the "DWG Type" property.
  std::wstring drawingType;
  // Whether that property belongs to what was wanted.
  bool drawingTypeSelected = true;

  // What isn't a block's value, and what is.
  std::span<const ZDXEngine::_PropData> OwnProperties() const {
    return std::span(properties).first(properties.size() - blockValueCount);
  }
  std::span<const ZDXEngine::_PropData> BlockProperties() const {
    return std::span(properties).last(blockValueCount);
  }
};

// Reads what is wanted of the drawing at `path`, opening it once.  The engine must be running.
std::variant<DrawingReport, Failure> ReadProperties(const std::wstring& path, const Wanted& wanted);

// The same, and the drawing's type in any case.
std::variant<DrawingReport, Failure> ReadDrawing(const std::wstring& path, const Wanted& wanted);

}  // namespace zdx

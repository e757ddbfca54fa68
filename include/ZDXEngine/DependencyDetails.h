// What a walk finds out about a drawing's references beyond their records.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ZDXEngine/DwgDependentFile.h"
#include "ZDXEngine/Export.h"

namespace ZDXEngine {

// What a drawing needs a file for.
enum class DependencyKind : std::int32_t {
  AttachedDrawing,
  OverlaidDrawing,
  Image,
  PdfUnderlay,
  DwfUnderlay,
  DgnUnderlay,
  PointCloud,
  LinkedData,
  Texture,
  Font,
  BigFont,
  ShapeFile,
  PlotStyleTable,
  PrinterConfiguration,
  StyleSheet,
  Menu,
  // Told by the drawing's own list of files alone.
  Listed,
  // Told by a vertical service.
  Service,
};

// What is wrong with a file.
enum class DependencyProblem : std::int32_t {
  None,
  NotFound,
  NoAccess,
  InUse,
  Damaged,
  // Not a drawing, or one of a version that can't be read.
  NotReadable,
  TooLarge,
  Other,
};

struct DependencyDetail {
  DependencyKind kind = DependencyKind::Service;
  // As the drawing stores it; of a service's record its "FilePath".
  std::wstring storedPath;
  // The name of the block, style or whatever else refers to the file; may be empty.
  std::wstring name;
  // The record whose drawing refers to this one, by its place in the list; nullopt for the walked
  // drawing.
  std::optional<std::size_t> parent;
  // Whether there is such a file: of a service's record, whether its "AbsolutePath" or else its
  // "FilePath" exists.
  bool exists = false;
  // Whether the drawing is marked as unloaded: put aside by its user, or not at hand when the file
  // was saved.
  bool isUnloaded = false;
  // Of a drawing that was reached before, or that is the walked one: what it refers to stands
  // there.
  bool isRepeated = false;
  // What the search, or the reading of a drawing, met; a sentence of its own where there is one.
  DependencyProblem problem = DependencyProblem::None;
  std::wstring reason;
};

// The details of `records`, which a walk gave together with `root`, in their order.  To be asked
// before the first Dispose.
ZDXENGINE_API std::vector<DependencyDetail> DescribeDependencies(
    DwgDependentFile* root, const std::vector<DwgDependentFile*>& records);

}  // namespace ZDXEngine

// The files that one drawing depends on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ZDXEngine/DependencyDetails.h"
#include "ZDXEngine/Diagnostics.h"

namespace zdx {

// One reference, or the walked drawing itself.
struct DependencyRecord {
  std::wstring refId;
  std::wstring sourcePath;
  std::wstring absolutePath;
  std::int32_t fileType = 0;
  bool supportRePath = false;
  bool isOverlay = false;
  // Its `parent` stands before the record in the report's list.
  ZDXEngine::DependencyDetail detail;
  // Equal for records of one file: the path of a file that exists, without links, and otherwise
  // what the drawing stores.
  std::wstring file;
};

struct DependencyReport {
  // Whether nothing but what is missing is told, and the drawings that lead there in a tree.
  bool onlyMissing = false;
  // Whether JSON is a tree.
  bool nested = false;
  std::wstring drawingType;
  DependencyRecord root;
  // In the engine's order.
  std::vector<DependencyRecord> dependencies;
  // Empty but for its path if the engine tells of another opening.
  ZDXEngine::Diagnostics diagnostics;
};

// Whether the file was looked for, and isn't there.
bool IsMissing(const DependencyRecord& record);

// How many files the drawing depends on, itself not counted, and how many of them are missing.
struct FileCount {
  std::size_t all = 0;
  std::size_t missing = 0;
};
FileCount CountFiles(const DependencyReport& report);

// A head and a tree, UTF-8, ending in a line end.
std::string TextOf(const std::wstring& path, const DependencyReport& report);

// One JSON document on one line, UTF-8, ending in a line end.  docs/json.md tells its form.
std::string JsonOf(const std::wstring& path, const DependencyReport& report);

}  // namespace zdx

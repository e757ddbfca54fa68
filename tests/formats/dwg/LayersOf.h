// Reading the layers of a drawing, or another table.
#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "backends/database/model/Drawing.h"

// What its records are called, and how long it took to tell.
struct Told {
  std::set<std::wstring> names;
  std::uint64_t warnings = 0;
  double seconds = 0.0;
};

// Of a file with those bytes, which can be opened.
Told LayersOf(const std::string& bytes,
              zdx::model::TableKind table = zdx::model::TableKind::kLayer);

// Reading the layers of a drawing.
#pragma once

#include <cstdint>
#include <set>
#include <string>

// What the layers of a drawing are called, and how long it took to tell.
struct Told {
  std::set<std::wstring> names;
  std::uint64_t warnings = 0;
  double seconds = 0.0;
};

// Of a file with those bytes, which can be opened.
Told LayersOf(const std::string& bytes);

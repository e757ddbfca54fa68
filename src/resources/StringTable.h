// The engine's texts by number.
//
// One list for every system: where Windows keeps a string table in the module, the build makes it
// from the same list.
#pragma once

#include <span>

namespace ZDXEngine {

struct StringTableEntry {
  unsigned int id;
  const wchar_t* text;
};

// All texts, in ascending order of their numbers.
std::span<const StringTableEntry> StringTable();

}  // namespace ZDXEngine

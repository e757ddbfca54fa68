// The engine's texts by number.
//
// One list for every system, Texts.list: on Windows the module's string table is made of it,
// elsewhere the table below.
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

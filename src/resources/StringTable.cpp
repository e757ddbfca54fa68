#include "resources/StringTable.h"

#include <algorithm>
#include <iterator>

namespace ZDXEngine {
namespace {

constexpr StringTableEntry kTexts[] = {
#define ZDX_TEXT(id, text) {id, L##text},
#include "resources/Texts.list"
#undef ZDX_TEXT
};

// Look-ups search by halves.
static_assert(std::is_sorted(std::begin(kTexts), std::end(kTexts),
                             [](const StringTableEntry& a, const StringTableEntry& b) {
                               return a.id < b.id;
                             }));

}  // namespace

std::span<const StringTableEntry> StringTable() { return kTexts; }

}  // namespace ZDXEngine

#include "properties/read/GeoNames.h"

#include <algorithm>
#include <span>
#include <vector>

#include "errors/Throw.h"
#include "resources/Constants.h"

namespace ZDXEngine {
namespace {

struct NamedValue {
  std::int32_t value;
  unsigned int textId;
};

constexpr NamedValue kCoordinateTypes[] = {{0, 119}, {1, 120}, {2, 121}, {3, 122}};

// Clients know these words: 9, which are mils, is called as 3 is, 21 to 23 have no word, and 24 has
// that of 20.
constexpr NamedValue kUnits[] = {
    {0, 123},  {1, 124},  {2, 125},  {3, 126},  {4, 127},  {5, 128},  {6, 129},  {7, 130},
    {8, 131},  {9, 126},  {10, 133}, {11, 134}, {12, 135}, {13, 136}, {14, 137}, {15, 138},
    {16, 139}, {17, 140}, {18, 141}, {19, 142}, {20, 143}, {24, 144},
};

struct Word {
  std::int32_t value;
  std::wstring text;
};

std::vector<Word> LoadWords(std::span<const NamedValue> values) {
  std::vector<Word> words;
  for (const NamedValue& named : values) {
    words.push_back({named.value, LoadResourceText(named.textId)});
  }
  return words;
}

std::wstring WordFor(const std::vector<Word>& words, std::int32_t value) {
  const auto found = std::ranges::find(words, value, &Word::value);
  return found == words.end() ? kEmptyText : found->text;
}

}  // namespace

std::wstring GetCoordinateTypeName(std::int32_t type) {
  static const std::vector<Word> words = LoadWords(kCoordinateTypes);
  return WordFor(words, type);
}

std::wstring GetUnitName(std::int32_t unit) {
  static const std::vector<Word> words = LoadWords(kUnits);
  return WordFor(words, unit);
}

}  // namespace ZDXEngine

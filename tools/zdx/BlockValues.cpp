#include "BlockValues.h"

#include <algorithm>
#include <map>
#include <string>

#include "FormatId.h"
#include "PropertyNames.h"
#include "PropertyValue.h"

namespace zdx {

namespace {

using ZDXEngine::_PropData;

// The format ids of `blocks`, each with its place among the different ones.
std::map<std::wstring, std::size_t> PlacesOf(std::span<const BlockFilter> blocks) {
  std::map<std::wstring, std::size_t> places;
  for (const BlockFilter& block : blocks) {
    places.try_emplace(FormatIdText(block.formatId), places.size());
  }
  return places;
}

bool HaveSameText(const _PropData& a, const _PropData& b) {
  const PropertyValue valueOfA = ValueOf(a);
  const PropertyValue valueOfB = ValueOf(b);
  const auto* const textOfA = std::get_if<std::wstring_view>(&valueOfA);
  const auto* const textOfB = std::get_if<std::wstring_view>(&valueOfB);
  if (textOfA == nullptr || textOfB == nullptr) return textOfA == textOfB;
  return *textOfA == *textOfB;
}

// Whether `copy` is what the engine puts behind a block's `value`.
bool IsPair(const _PropData& value, const _PropData& copy) {
  return SetOf(copy) == PropertySet::kStorage && copy.typeCode == ZDXEngine::kTypeText &&
         (value.name == copy.name || IsKnownByNumber(value)) && HaveSameText(value, copy);
}

}  // namespace

std::size_t CountBlockValues(std::span<const _PropData> properties,
                             std::span<const BlockFilter> blocks) {
  const auto places = PlacesOf(blocks);
  std::size_t left = properties.size();
  while (left >= 2 && places.contains(properties[left - 2].formatId) &&
         IsPair(properties[left - 2], properties[left - 1])) {
    left -= 2;
  }
  return properties.size() - left;
}

std::vector<BlockValues> SortBlockValues(std::span<const _PropData> properties,
                                         std::span<const BlockFilter> blocks) {
  const auto places = PlacesOf(blocks);
  std::vector<BlockValues> sorted(places.size());
  for (const BlockFilter& block : blocks) {
    sorted[places.at(FormatIdText(block.formatId))].blocks.push_back(&block);
  }
  for (std::size_t i = 0; i + 1 < properties.size(); i += 2) {
    sorted[places.at(properties[i].formatId)].values.push_back(&properties[i + 1]);
  }
  return sorted;
}

}  // namespace zdx

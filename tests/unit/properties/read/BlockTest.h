// A test of what blocks and their references carry, in a drawing with a model space.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "properties/read/BlockAttributes.h"
#include "unit/properties/read/CollectorTest.h"

namespace scripted {

class BlockTest : public CollectorTest {
 protected:
  static constexpr GUID kOwnId = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
  static constexpr wchar_t kOwnSet[] = L"{00000001-0002-0003-0405-060708090A0B}";
  static constexpr GUID kOtherId = {1, 2, 3, {4, 5, 6, 7, 8, 9, 10, 12}};
  static constexpr wchar_t kOtherSet[] = L"{00000001-0002-0003-0405-060708090A0C}";

  BlockTest() { modelSpace.layout = true; }

  void Ask(std::wstring blockName, const GUID& formatId = kOwnId, bool usePrompt = false) {
    filters.push_back({std::move(blockName), formatId, false, usePrompt});
  }
  void Read() { ZDXEngine::GetBlockAttributes(filters, properties, &database); }

  // What is in the list now under the engine's own set: "TAG=text".
  std::vector<std::string> Values() const { return Under(expected::kStorageSet); }
  std::vector<std::string> Under(const std::wstring& set) const {
    std::vector<std::string> words;
    for (const ZDXEngine::_PropData& property : properties) {
      if (property.formatId == set) words.push_back(expected::Shown(property));
    }
    return words;
  }
  // What a walk over the drawing gives, told likewise.
  std::vector<std::string> ReadValues() {
    Read();
    return Values();
  }

  // How often what has this label was closed.
  std::ptrdiff_t Closings(const std::string& label) const {
    return std::ranges::count(world.Calls({"close"}), label + ".close()");
  }

  // A reference to `block` that stands in `owner`, with one attribute of the tag "A".
  static Entity& Refer(Record& block, const Record& owner, std::wstring text) {
    Entity& reference = block.AddReference(&owner);
    reference.AddAttribute(L"A", std::move(text));
    return reference;
  }

  Record& modelSpace = world.drawing.blocks.Add(L"*Model_Space");
  std::vector<ZDXEngine::BlockFilterParam> filters;
};

}  // namespace scripted

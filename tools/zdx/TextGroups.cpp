#include "TextGroups.h"

#include <algorithm>
#include <array>

namespace zdx {

namespace {

constexpr std::array kGroups = {
    TextGroup{PropertyGroup::kSummary, "Summary", GroupLayout::kFields},
    TextGroup{PropertyGroup::kCustom, "Custom", GroupLayout::kFields},
    TextGroup{PropertyGroup::kCreator, "Creator", GroupLayout::kFields},
    TextGroup{PropertyGroup::kSettings, "Settings", GroupLayout::kFields},
    TextGroup{PropertyGroup::kLocation, "Geographic location", GroupLayout::kFields},
    TextGroup{PropertyGroup::kLayers, "Layers", GroupLayout::kList},
    TextGroup{PropertyGroup::kLineTypes, "Line types", GroupLayout::kPairs},
    TextGroup{PropertyGroup::kViews, "Views", GroupLayout::kList},
    TextGroup{PropertyGroup::kObjectGroups, "Groups", GroupLayout::kList},
    TextGroup{PropertyGroup::kMultilineStyles, "Multiline styles", GroupLayout::kList},
    TextGroup{PropertyGroup::kLayouts, "Layouts", GroupLayout::kList},
    TextGroup{PropertyGroup::kNamedObjects, "Named objects", GroupLayout::kList},
    TextGroup{PropertyGroup::kPlotSettings, "Plot settings", GroupLayout::kList},
    TextGroup{PropertyGroup::kOther, "Other", GroupLayout::kFields},
};

}  // namespace

std::span<const TextGroup> TextGroups() { return kGroups; }

std::size_t TextGroupOf(const ZDXEngine::_PropData& property) {
  const PropertyGroup group = GroupOf(property);
  const auto shown =
      std::find_if(kGroups.begin(), kGroups.end() - 1,
                   [&](const TextGroup& candidate) { return candidate.group == group; });
  return static_cast<std::size_t>(shown - kGroups.begin());
}

bool IsSecondOfPair(const ZDXEngine::_PropData& property) {
  return property.name == L"LineType Comments";
}

}  // namespace zdx

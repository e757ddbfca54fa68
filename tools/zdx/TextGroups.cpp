#include "TextGroups.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "PropertyNames.h"

namespace zdx {

namespace {

enum Group : std::size_t {
  kSummary,
  kCustom,
  kSettings,
  kLocation,
  kLayers,
  kLineTypes,
  kViews,
  kObjectGroups,
  kMultilineStyles,
  kLayouts,
  kNamedObjects,
  kPlotSettings,
  kOther,
  kGroupCount,
};

constexpr std::array kGroups = {
    TextGroup{"Summary", GroupLayout::kFields},
    TextGroup{"Custom", GroupLayout::kFields},
    TextGroup{"Settings", GroupLayout::kFields},
    TextGroup{"Location", GroupLayout::kFields},
    TextGroup{"Layers", GroupLayout::kList},
    TextGroup{"Line types", GroupLayout::kPairs},
    TextGroup{"Views", GroupLayout::kList},
    TextGroup{"Groups", GroupLayout::kList},
    TextGroup{"Multiline styles", GroupLayout::kList},
    TextGroup{"Layouts", GroupLayout::kList},
    TextGroup{"Named objects", GroupLayout::kList},
    TextGroup{"Plot settings", GroupLayout::kList},
    TextGroup{"Other", GroupLayout::kFields},
};
static_assert(kGroups.size() == kGroupCount);

constexpr const wchar_t* kLineTypeComments = L"LineType Comments";

struct GroupedName {
  const wchar_t* name;
  Group group;
};

// The engine's own properties by name.
constexpr GroupedName kGroupedNames[] = {
    {L"Layer Name", kLayers},
    {L"LineType Name", kLineTypes},
    {kLineTypeComments, kLineTypes},
    {L"Named Object Name", kNamedObjects},
    {L"Layout Name", kLayouts},
    {L"View Name", kViews},
    {L"Group Name", kObjectGroups},
    {L"MultiLine Style Name", kMultilineStyles},
    {L"Plot Settings Name", kPlotSettings},
    {L"Menu", kSettings},
    {L"ProjectName", kSettings},
    {L"HyperlinkBase", kSettings},
    {L"StyleSheet", kSettings},
    {L"Dimpost", kSettings},
    {L"Dimapost", kSettings},
    {L"Dimblk", kSettings},
    {L"Dimblk1", kSettings},
    {L"Dimblk2", kSettings},
    {L"CoordinateProjectionRadius", kLocation},
    {L"CoordinateSystem", kLocation},
    {L"coordinateType", kLocation},
    {L"designPoint", kLocation},
    {L"doSeaLevelCorrection", kLocation},
    {L"GeoRSS", kLocation},
    {L"horizontalUnits", kLocation},
    {L"horizontalUnitScale", kLocation},
    {L"northDirection", kLocation},
    {L"northDirectionVector", kLocation},
    {L"observationCoverage", kLocation},
    {L"observationFrom", kLocation},
    {L"observationTo", kLocation},
    {L"referencePoint", kLocation},
    {L"scaleFactor", kLocation},
    {L"seaLevelElevation", kLocation},
    {L"upDirection", kLocation},
    {L"verticalUnits", kLocation},
    {L"verticalUnitScale", kLocation},
};

}  // namespace

std::span<const TextGroup> TextGroups() { return kGroups; }

std::size_t GroupOf(const ZDXEngine::_PropData& property) {
  switch (SetOf(property)) {
    case PropertySet::kSummary:
      return kSummary;
    case PropertySet::kCustom:
      return kCustom;
    case PropertySet::kUnknown:
      return kOther;
    case PropertySet::kStorage:
      break;
  }
  const auto* const known =
      std::find_if(std::begin(kGroupedNames), std::end(kGroupedNames),
                   [&](const GroupedName& entry) { return property.name == entry.name; });
  return known == std::end(kGroupedNames) ? kOther : known->group;
}

bool IsSecondOfPair(const ZDXEngine::_PropData& property) {
  return property.name == kLineTypeComments;
}

}  // namespace zdx

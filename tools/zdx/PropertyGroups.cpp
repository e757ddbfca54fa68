#include "PropertyGroups.h"

#include <algorithm>
#include <iterator>

#include "PropertyNames.h"

namespace zdx {

namespace {

constexpr GroupedName kGroupedNames[] = {
    {L"DWG Creator Name", PropertyGroup::kCreator},
    {L"DWG Creator Version", PropertyGroup::kCreator},
    {L"Layer Name", PropertyGroup::kLayers},
    {L"LineType Name", PropertyGroup::kLineTypes},
    {L"LineType Comments", PropertyGroup::kLineTypes},
    {L"Named Object Name", PropertyGroup::kNamedObjects},
    {L"Layout Name", PropertyGroup::kLayouts},
    {L"View Name", PropertyGroup::kViews},
    {L"Group Name", PropertyGroup::kObjectGroups},
    {L"MultiLine Style Name", PropertyGroup::kMultilineStyles},
    {L"Plot Settings Name", PropertyGroup::kPlotSettings},
    {L"Menu", PropertyGroup::kSettings},
    {L"ProjectName", PropertyGroup::kSettings},
    {L"HyperlinkBase", PropertyGroup::kSettings},
    {L"StyleSheet", PropertyGroup::kSettings},
    {L"Dimpost", PropertyGroup::kSettings},
    {L"Dimapost", PropertyGroup::kSettings},
    {L"Dimblk", PropertyGroup::kSettings},
    {L"Dimblk1", PropertyGroup::kSettings},
    {L"Dimblk2", PropertyGroup::kSettings},
    {L"CoordinateProjectionRadius", PropertyGroup::kLocation},
    {L"CoordinateSystem", PropertyGroup::kLocation},
    {L"coordinateType", PropertyGroup::kLocation},
    {L"designPoint", PropertyGroup::kLocation},
    {L"doSeaLevelCorrection", PropertyGroup::kLocation},
    {L"GeoRSS", PropertyGroup::kLocation},
    {L"horizontalUnits", PropertyGroup::kLocation},
    {L"horizontalUnitScale", PropertyGroup::kLocation},
    {L"northDirection", PropertyGroup::kLocation},
    {L"northDirectionVector", PropertyGroup::kLocation},
    {L"observationCoverage", PropertyGroup::kLocation},
    {L"observationFrom", PropertyGroup::kLocation},
    {L"observationTo", PropertyGroup::kLocation},
    {L"referencePoint", PropertyGroup::kLocation},
    {L"scaleFactor", PropertyGroup::kLocation},
    {L"seaLevelElevation", PropertyGroup::kLocation},
    {L"upDirection", PropertyGroup::kLocation},
    {L"verticalUnits", PropertyGroup::kLocation},
    {L"verticalUnitScale", PropertyGroup::kLocation},
};

}  // namespace

std::span<const GroupedName> GroupedNames() { return kGroupedNames; }

PropertyGroup GroupOf(const ZDXEngine::_PropData& property) {
  switch (SetOf(property)) {
    case PropertySet::kSummary:
      return PropertyGroup::kSummary;
    case PropertySet::kCustom:
      return PropertyGroup::kCustom;
    case PropertySet::kUnknown:
      return PropertyGroup::kOther;
    case PropertySet::kStorage:
      break;
  }
  const auto* const known =
      std::find_if(std::begin(kGroupedNames), std::end(kGroupedNames),
                   [&](const GroupedName& entry) { return property.name == entry.name; });
  return known == std::end(kGroupedNames) ? PropertyGroup::kOther : known->group;
}

}  // namespace zdx

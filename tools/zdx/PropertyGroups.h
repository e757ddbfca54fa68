// What the engine's own properties tell of, by their names.
#pragma once

#include <span>

#include "ZDXEngine/PropData.h"

namespace zdx {

enum class PropertyGroup {
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
  kCreator,
  kOther,
};

struct GroupedName {
  const wchar_t* name;
  PropertyGroup group;
};

// The names of FMTID_Storage that are known.  Those of a group that lists things are the same for
// each of them.
std::span<const GroupedName> GroupedNames();

PropertyGroup GroupOf(const ZDXEngine::_PropData& property);

}  // namespace zdx

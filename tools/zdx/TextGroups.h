// The groups in which text output shows the properties of a drawing.
#pragma once

#include <span>
#include <string_view>

#include "PropertyGroups.h"

namespace zdx {

enum class GroupLayout {
  // A name and a value in a row.
  kFields,
  // Only the value in a row, because all names are the same.
  kList,
  // The values of two properties in a row: the first of the group's names, and the second if it
  // comes directly behind.
  kPairs,
};

struct TextGroup {
  PropertyGroup group;
  std::string_view title;
  GroupLayout layout;
};

// All groups in the order in which they are shown; the last takes what the others don't.
std::span<const TextGroup> TextGroups();

// The index of the group in which `property` is shown.
std::size_t TextGroupOf(const ZDXEngine::_PropData& property);

// Whether `property` is the second half of a row of a kPairs group.
bool IsSecondOfPair(const ZDXEngine::_PropData& property);

}  // namespace zdx

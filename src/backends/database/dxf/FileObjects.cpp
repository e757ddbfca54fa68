#include "backends/database/dxf/FileObjects.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "backends/database/dxf/GroupedTags.h"
#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using model::FileUse;

// Where objects of a type keep a path.
struct PathPlace {
  std::string_view type;
  int code;
  FileUse use;
  // The subclass whose tags are meant; empty for all.
  std::string_view part = {};
};

constexpr PathPlace kPlaces[] = {
    {kImageDefinition, kPathCode, FileUse::kImage},
    {kImageBackground, kBackgroundCode, FileUse::kImage},
    {kPdfDefinition, kPathCode, FileUse::kPdfUnderlay},
    {kDwfDefinition, kPathCode, FileUse::kDwfUnderlay},
    {kDgnDefinition, kPathCode, FileUse::kDgnUnderlay},
    {kPointCloudDefinition, kPathCode, FileUse::kPointCloud},
    {kPointCloudDefinitionEx, kPathCode, FileUse::kPointCloud},
    {kDataLink, kConnectionCode, FileUse::kLinkedData},
    // One for each property of the surface that a picture can tell.
    {kMaterial, 3, FileUse::kTexture},
    {kMaterial, 4, FileUse::kTexture},
    {kMaterial, 6, FileUse::kTexture},
    {kMaterial, 7, FileUse::kTexture},
    {kMaterial, 8, FileUse::kTexture},
    {kMaterial, 9, FileUse::kTexture},
    {kLayout, kPrinterCode, FileUse::kPrinter, kPlotSettingsMarker},
    {kLayout, kPlotStyleTableCode, FileUse::kPlotStyleTable, kPlotSettingsMarker},
    {kPlotSettings, kPrinterCode, FileUse::kPrinter, kPlotSettingsMarker},
    {kPlotSettings, kPlotStyleTableCode, FileUse::kPlotStyleTable, kPlotSettingsMarker},
};

bool IsOfType(std::string_view type, const PathPlace& place) {
  if (place.use == FileUse::kPointCloud) return type.ends_with(place.type);
  return type == place.type;
}

// How many paths an object may have there.  A material keeps the pictures of its colour and of its
// relief under one code.
std::size_t MostAt(const PathPlace& place) { return place.use == FileUse::kTexture ? 2 : 1; }

}  // namespace

bool MayNameFiles(std::string_view type) {
  return std::any_of(std::begin(kPlaces), std::end(kPlaces),
                     [type](const PathPlace& place) { return IsOfType(type, place); });
}

FileTags ReadFileTags(const TagStream& stream, const ObjectStart& start) {
  FileTags found;
  std::array<std::size_t, std::size(kPlaces)> counts = {};
  std::string_view part;
  GroupedTags tags(stream, start.body);
  Tag tag;
  while (tags.Next(tag)) {
    if (!tags.IsOwn()) continue;
    if (tag.code == kSubclassCode) part = Trimmed(tag.value);
    for (std::size_t i = 0; i < std::size(kPlaces); ++i) {
      const PathPlace& place = kPlaces[i];
      if (tag.code != place.code || !IsOfType(start.type, place)) continue;
      if ((!place.part.empty() && part != place.part) || counts[i] == MostAt(place)) continue;
      ++counts[i];
      found.tags.push_back({place.use, tag});
    }
  }
  found.damagedAt = tags.tags().damagedAt();
  return found;
}

}  // namespace zdx::dxf

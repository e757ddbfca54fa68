// The tags of a location object.
#pragma once

#include <cstddef>
#include <optional>

#include "backends/database/dxf/ChunkedText.h"
#include "backends/database/dxf/GroupCodes.h"
#include "backends/database/dxf/TagStream.h"
#include "backends/database/model/Entities.h"

namespace zdx::dxf {

// What stands in the tags as numbers, and the tags of the texts.
struct GeoTags {
  // Without texts.
  model::GeoData data;
  ChunkedText coordinateSystem{kMoreSystemCode, kSystemCode};
  std::optional<Tag> geoRssTag;
  std::optional<Tag> observationFrom;
  std::optional<Tag> observationTo;
  std::optional<Tag> observationCoverage;
  // Where a value stands that isn't a number, which has its default; kNowhere if there is none.
  std::size_t unreadableAt = kNowhere;
};

// Reads all tags of the object; nullopt if they don't tell its version.
std::optional<GeoTags> ReadGeoTags(Form form, ObjectTags& tags);

}  // namespace zdx::dxf

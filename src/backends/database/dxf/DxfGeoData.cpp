// Where the drawing lies on the earth.
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/GeoTags.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {

std::optional<model::ObjectKey> DxfDrawing::GeoDataObject() {
  const Block* const modelSpace = Blocks().modelSpace();
  if (modelSpace == nullptr) return std::nullopt;
  const std::optional<ObjectStart> object = ExtensionEntry(modelSpace->extension, kGeoDataKey);
  if (!object || object->type != kGeoData) return std::nullopt;
  return model::ObjectKey{object->at};
}

std::optional<model::GeoData> DxfDrawing::ReadGeoData(model::ObjectKey object) {
  const ObjectStart start = StartOf(object);
  ObjectTags tags(stream_, start.body);
  const std::optional<GeoTags> geo = ReadGeoTags(stream_.form(), tags);
  WarnOfDamage(tags);
  // The last text stands behind all that is told.
  const bool isLost = tags.endedByDamage() && !(geo && geo->observationCoverage);
  if (!geo || isLost) {
    if (!isLost) Warn(L"A location tells no version and can't be read.", start.at);
    return std::nullopt;
  }
  if (geo->unreadableAt != kNowhere) {
    Warn(L"A value of a location isn't a number.", geo->unreadableAt);
  }
  model::GeoData data = geo->data;
  data.coordinateSystem = TextOf(geo->coordinateSystem, false);
  data.geoRssTag = TextOrEmpty(geo->geoRssTag, false);
  data.observationFrom = TextOrEmpty(geo->observationFrom, false);
  data.observationTo = TextOrEmpty(geo->observationTo, false);
  data.observationCoverage = TextOrEmpty(geo->observationCoverage, false);
  return data;
}

}  // namespace zdx::dxf

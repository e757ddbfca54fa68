// Where the drawing lies on the earth.
#include <utility>

#include "backends/database/dwg/DwgDrawing.h"
#include "backends/database/dwg/Tokens.h"

namespace zdx::dwg {

std::optional<model::ObjectKey> DwgDrawing::GeoDataObject() {
  const model::Handle space = SpaceRecords().model;
  const auto record = ReadBlock(space, {Key::kExtension}, Record::Extent::kFront);
  if (!record) return std::nullopt;
  const auto entry = ExtensionEntry(space, record->fields, kGeoDataKey);
  if (!entry || *entry == 0) return std::nullopt;
  const std::optional<Kind> kind = KindOf(*entry);
  if (!kind || kind->like != kGeoDataType) {
    Warn(L"The location object isn't there.", *entry);
    return std::nullopt;
  }
  return model::ObjectKey{*entry};
}

std::optional<model::GeoData> DwgDrawing::ReadGeoData(model::ObjectKey object) {
  const auto handle = static_cast<model::Handle>(object);
  const std::optional<Object> record = Read(handle);
  if (!record || record->like != kGeoDataType || !record->whole) return std::nullopt;
  const FieldValues& fields = record->fields;
  const auto unit = [&fields](Key key) { return static_cast<int>(fields.Number(key)); };
  const bool isFirst = fields.Number(Key::kGeoVersion) == 1;
  model::GeoData data;
  data.coordinateType = unit(Key::kCoordinateType);
  data.designPoint = fields.RealsOf(Key::kDesignPoint);
  data.referencePoint = fields.RealsOf(Key::kReferencePoint);
  // The first version stores the northing before the easting.
  if (isFirst) std::swap(data.referencePoint[0], data.referencePoint[1]);
  data.upDirection = fields.RealsOf(Key::kUpDirection);
  data.horizontalUnitScale = fields.Real(Key::kHorizontalScale);
  data.horizontalUnits = unit(Key::kHorizontalUnits);
  data.coordinateSystem = TextOf(fields, Key::kCoordinateSystem, handle);
  data.geoRssTag = TextOf(fields, Key::kGeoTag, handle);
  data.observationFrom = TextOf(fields, Key::kObservationFrom, handle);
  data.observationTo = TextOf(fields, Key::kObservationTo, handle);
  data.observationCoverage = TextOf(fields, Key::kObservationCoverage, handle);
  if (isFirst) {
    data.SetNorth(fields.Real(Key::kNorthAngle));
    return data;
  }
  const FieldValues::Reals north = fields.RealsOf(Key::kNorthVector);
  data.SetNorth({north[0], north[1]});
  data.verticalUnitScale = fields.Real(Key::kVerticalScale);
  data.verticalUnits = unit(Key::kVerticalUnits);
  data.scaleFactor = fields.Real(Key::kScaleFactor);
  data.correctsSeaLevel = fields.Number(Key::kSeaLevel) != 0;
  data.seaLevelElevation = fields.Real(Key::kSeaElevation);
  data.projectionRadius = fields.Real(Key::kProjectionRadius);
  return data;
}

}  // namespace zdx::dwg

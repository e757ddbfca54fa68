// The location object that is handed out.
#pragma once

#include <optional>
#include <string>

#include "backends/database/zndb/Objects.h"
#include "platform/zndb/ZnDbGeoData.h"

namespace zdx::database {

class EmbeddedGeoData : public Embedded<ZnDbGeoData> {
 public:
  EmbeddedGeoData(ZnDbStub* stub, model::GeoData data) : Embedded(stub), data_(std::move(data)) {}

  TypeOfCoordinates coordinateType() const override { return data_.coordinateType; }
  ZnGePoint3d designPoint() const override { return Point(data_.designPoint); }
  ZnGePoint3d referencePoint() const override { return Point(data_.referencePoint); }
  ZnGeVector2d northDirectionVector() const override {
    return {data_.northVector[0], data_.northVector[1]};
  }
  double northDirection() const override { return data_.northAngle; }
  ZnGeVector3d upDirection() const override {
    return {data_.upDirection[0], data_.upDirection[1], data_.upDirection[2]};
  }
  double horizontalUnitScale() const override { return data_.horizontalUnitScale; }
  ZnDb::UnitsValue horizontalUnits() const override { return data_.horizontalUnits; }
  double verticalUnitScale() const override { return data_.verticalUnitScale; }
  ZnDb::UnitsValue verticalUnits() const override { return data_.verticalUnits; }
  double scaleFactor() const override { return data_.scaleFactor; }
  bool doSeaLevelCorrection() const override { return data_.correctsSeaLevel; }
  double seaLevelElevation() const override { return data_.seaLevelElevation; }
  double coordinateProjectionRadius() const override { return data_.projectionRadius; }
  const wchar_t* coordinateSystem() const override { return TextOf(data_.coordinateSystem); }
  const wchar_t* geoRSSTag() const override { return TextOf(data_.geoRssTag); }
  const wchar_t* observationFrom() const override { return TextOf(data_.observationFrom); }
  const wchar_t* observationTo() const override { return TextOf(data_.observationTo); }
  const wchar_t* observationCoverage() const override { return TextOf(data_.observationCoverage); }

 private:
  static ZnGePoint3d Point(const std::array<double, 3>& at) { return {at[0], at[1], at[2]}; }
  static const wchar_t* TextOf(const std::optional<std::wstring>& text) {
    return text ? text->c_str() : nullptr;
  }

  model::GeoData data_;
};

}  // namespace zdx::database

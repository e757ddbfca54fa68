#include "support/scripted/LocationObject.h"

#include "platform/zndb/ZnDbGeoData.h"
#include "support/scripted/Objects.h"

namespace scripted {
namespace {

class LocationObject : public Object<ZnDbGeoData> {
 public:
  LocationObject(OpenObjects& owner, const Location& location)
      : Object(owner, location), location_(location) {}

  TypeOfCoordinates coordinateType() const override {
    return Told("coordinateType", location_.coordinateType);
  }
  ZnGePoint3d designPoint() const override { return Told("designPoint", location_.designPoint); }
  ZnGePoint3d referencePoint() const override {
    return Told("referencePoint", location_.referencePoint);
  }
  ZnGeVector2d northDirectionVector() const override {
    return Told("northDirectionVector", location_.northDirectionVector);
  }
  double northDirection() const override {
    return Told("northDirection", location_.northDirection);
  }
  ZnGeVector3d upDirection() const override { return Told("upDirection", location_.upDirection); }
  double horizontalUnitScale() const override {
    return Told("horizontalUnitScale", location_.horizontalUnitScale);
  }
  ZnDb::UnitsValue horizontalUnits() const override {
    return Told("horizontalUnits", location_.horizontalUnits);
  }
  double verticalUnitScale() const override {
    return Told("verticalUnitScale", location_.verticalUnitScale);
  }
  ZnDb::UnitsValue verticalUnits() const override {
    return Told("verticalUnits", location_.verticalUnits);
  }
  double scaleFactor() const override { return Told("scaleFactor", location_.scaleFactor); }
  bool doSeaLevelCorrection() const override {
    return Told("doSeaLevelCorrection", location_.doSeaLevelCorrection);
  }
  double seaLevelElevation() const override {
    return Told("seaLevelElevation", location_.seaLevelElevation);
  }
  double coordinateProjectionRadius() const override {
    return Told("coordinateProjectionRadius", location_.coordinateProjectionRadius);
  }
  const wchar_t* coordinateSystem() const override {
    return Told("coordinateSystem", TextOf(location_.coordinateSystem));
  }
  const wchar_t* geoRSSTag() const override {
    return Told("geoRSSTag", TextOf(location_.geoRSSTag));
  }
  const wchar_t* observationFrom() const override {
    return Told("observationFrom", TextOf(location_.observationFrom));
  }
  const wchar_t* observationTo() const override {
    return Told("observationTo", TextOf(location_.observationTo));
  }
  const wchar_t* observationCoverage() const override {
    return Told("observationCoverage", TextOf(location_.observationCoverage));
  }

 private:
  template <class T>
  T Told(std::string_view operation, T value) const {
    Record(operation);
    return value;
  }
  static const wchar_t* TextOf(const std::optional<std::wstring>& text) {
    return text ? text->c_str() : nullptr;
  }

  const Location& location_;
};

}  // namespace

ZnDbObject* NewLocation(OpenObjects& owner, const Location& location) {
  return new LocationObject(owner, location);
}

}  // namespace scripted

// The geographic location of a drawing.
#pragma once

#include "platform/zndb/ZnDbObjects.h"
#include "platform/zndb/ZnGe.h"

class ZnDbDatabase;

namespace ZnDb {

// A unit of length by its number: 0 undefined, 1 inches, 2 feet, ... 6 metres, up to 24.
using UnitsValue = int;

}  // namespace ZnDb

// Where the model lies on the earth.  None of these fail; texts are valid as long as the object.
class ZnDbGeoData : public ZnDbObject {
 public:
  // 0 unknown, 1 local, 2 grid, 3 geographic.
  using TypeOfCoordinates = int;

  static ZnRxClass* desc();

  virtual TypeOfCoordinates coordinateType() const = 0;
  // The place of the model that is tied to the earth, in the model's coordinates.
  virtual ZnGePoint3d designPoint() const = 0;
  // The same place in the coordinates of `coordinateType`.
  virtual ZnGePoint3d referencePoint() const = 0;
  virtual ZnGeVector2d northDirectionVector() const = 0;
  // The angle from the y axis to the north, against the clock, in radians.
  virtual double northDirection() const = 0;
  virtual ZnGeVector3d upDirection() const = 0;
  // What turns lengths in the model into metres, and its unit.
  virtual double horizontalUnitScale() const = 0;
  virtual ZnDb::UnitsValue horizontalUnits() const = 0;
  virtual double verticalUnitScale() const = 0;
  virtual ZnDb::UnitsValue verticalUnits() const = 0;
  virtual double scaleFactor() const = 0;
  virtual bool doSeaLevelCorrection() const = 0;
  virtual double seaLevelElevation() const = 0;
  virtual double coordinateProjectionRadius() const = 0;
  // The definition of the coordinate system: XML, or WKT in old drawings.  This and the texts below
  // may be null.
  virtual const wchar_t* coordinateSystem() const = 0;
  virtual const wchar_t* geoRSSTag() const = 0;
  virtual const wchar_t* observationFrom() const = 0;
  virtual const wchar_t* observationTo() const = 0;
  virtual const wchar_t* observationCoverage() const = 0;
};

// On success `id` names the drawing's location object, or is null if it has none; a failure means
// that it has none, too.
Zent::ErrorStatus zndbGetGeoDataObjId(ZnDbDatabase* database, ZnDbObjectId& id);

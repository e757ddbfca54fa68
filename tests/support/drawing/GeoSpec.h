#pragma once

#include <string>

#include "support/drawing/ObjectSpec.h"
#include "support/drawing/Tokens.h"

namespace drawing {

struct SpacePoint {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
};

// A location object.  Give it to a drawing as an entry of model space's extension dictionary under
// the name kGeoKey.
struct GeoSpec {
  // Of the object, not of the drawing: 1 as in AC1021, 2 or 3 as in later drawings.  The first
  // keeps one scale and one unit, those of the horizontal, and of the rest nothing about the
  // vertical, the estimation of the scale, the sea level and the projection.
  int version = 3;
  // 0 unknown, 1 local, 2 grid, 3 geographic.
  int coordinateType = 3;
  SpacePoint designPoint = {};
  SpacePoint referencePoint = {};
  double horizontalUnitScale = 1.0;
  int horizontalUnits = 6;
  double verticalUnitScale = 1.0;
  int verticalUnits = 6;
  SpacePoint upDirection = {0.0, 0.0, 1.0};
  // Of a vector to the north.
  double northX = 0.0;
  double northY = 1.0;
  int scaleEstimation = 1;
  double scaleFactor = 1.0;
  bool correctsSeaLevel = false;
  double seaLevelElevation = 0.0;
  double projectionRadius = 0.0;
  std::string coordinateSystem = {};
  std::string geoRss = {};
  std::string observationFrom = {};
  std::string observationTo = {};
  std::string observationCoverage = {};
};

inline constexpr const char* kGeoType = "GEODATA";

ObjectSpec GeoObject(const GeoSpec& geo);

}  // namespace drawing

#include "support/drawing/GeoSpec.h"

#include <cmath>
#include <numbers>

#include "support/drawing/DrawingSpec.h"
#include "support/drawing/LongText.h"

namespace drawing {
namespace {

constexpr std::size_t kLongestChunk = 255;

void Append(std::vector<Tag>& tags, const std::vector<Tag>& more) {
  tags.insert(tags.end(), more.begin(), more.end());
}

void AppendSpacePoint(std::vector<Tag>& tags, int code, const SpacePoint& point) {
  Append(tags, {{code, point.x}, {code + 10, point.y}, {code + 20, point.z}});
}

// All pieces but the last under 303.
void AppendSystem(std::vector<Tag>& tags, std::string rest) {
  while (rest.size() > kLongestChunk) tags.emplace_back(303, TakePiece(rest, kLongestChunk));
  tags.emplace_back(301, rest);
}

void AppendObservation(std::vector<Tag>& tags, const GeoSpec& geo) {
  Append(tags, {{305, geo.observationFrom},
                {306, geo.observationTo},
                {307, geo.observationCoverage},
                {93, 0},
                {96, 0}});
}

// Values of another program's, under codes that mean something else in the later versions.
void AppendForeignValues(std::vector<Tag>& tags) {
  Append(tags, {{3, "BEGIN"}, {292, 0}, {14, 0.0},  {24, 0.0}, {15, 0.0},  {25, 0.0},  {93, 0},
                {94, 0},      {293, 0}, {16, 0.0},  {26, 0.0}, {17, 0.0},  {27, 0.0},  {54, 0.0},
                {140, 0.0},   {95, 0},  {141, 9.0}, {96, 0},   {142, 9.0}, {143, 9.0}, {4, "END"}});
}

// The reference point tells the northing before the easting.
std::vector<Tag> FirstVersion(const GeoSpec& geo) {
  const SpacePoint& reference = geo.referencePoint;
  std::vector<Tag> tags = {
      {100, kGeoClass},  {90, geo.version}, {70, geo.coordinateType}, {330, kModelSpaceHandle},
      {40, reference.y}, {41, reference.x}, {42, reference.z},        {91, geo.horizontalUnits}};
  AppendSpacePoint(tags, 10, geo.designPoint);
  AppendSpacePoint(tags, 11, SpacePoint());
  AppendSpacePoint(tags, 210, geo.upDirection);
  const double angle = std::atan2(-geo.northX, geo.northY);
  Append(tags, {{52, angle * 180.0 / std::numbers::pi},
                {43, 1.0},
                {44, 1.0},
                {45, 1.0},
                {301, geo.coordinateSystem},
                {302, geo.geoRss},
                {46, geo.horizontalUnitScale},
                {303, "A datum"},
                {304, "A system"}});
  AppendObservation(tags, geo);
  AppendForeignValues(tags);
  return tags;
}

std::vector<Tag> LaterVersion(const GeoSpec& geo) {
  std::vector<Tag> tags = {
      {100, kGeoClass}, {90, geo.version}, {330, kModelSpaceHandle}, {70, geo.coordinateType}};
  AppendSpacePoint(tags, 10, geo.designPoint);
  AppendSpacePoint(tags, 11, geo.referencePoint);
  Append(tags, {{40, geo.horizontalUnitScale},
                {91, geo.horizontalUnits},
                {41, geo.verticalUnitScale},
                {92, geo.verticalUnits}});
  AppendSpacePoint(tags, 210, geo.upDirection);
  Append(tags, {{12, geo.northX},
                {22, geo.northY},
                {95, geo.scaleEstimation},
                {141, geo.scaleFactor},
                {294, geo.correctsSeaLevel},
                {142, geo.seaLevelElevation},
                {143, geo.projectionRadius}});
  AppendSystem(tags, geo.coordinateSystem);
  tags.emplace_back(302, geo.geoRss);
  AppendObservation(tags, geo);
  return tags;
}

}  // namespace

ObjectSpec GeoObject(const GeoSpec& geo) {
  return CustomObject(kGeoType, geo.version == 1 ? FirstVersion(geo) : LaterVersion(geo));
}

}  // namespace drawing

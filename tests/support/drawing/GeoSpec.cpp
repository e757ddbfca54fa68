#include "support/drawing/GeoSpec.h"

#include "support/drawing/DrawingSpec.h"

namespace drawing {
namespace {

constexpr int kObjectVersion = 3;
constexpr std::size_t kLongestChunk = 255;

void Append(std::vector<Tag>& tags, const std::vector<Tag>& more) {
  tags.insert(tags.end(), more.begin(), more.end());
}

void AppendPoint(std::vector<Tag>& tags, int code, const SpacePoint& point) {
  Append(tags, {{code, point.x}, {code + 10, point.y}, {code + 20, point.z}});
}

// All pieces but the last under 303.  Cut between characters.
void AppendSystem(std::vector<Tag>& tags, std::string rest) {
  while (rest.size() > kLongestChunk) {
    std::size_t size = kLongestChunk;
    while ((static_cast<unsigned char>(rest[size]) & 0xC0) == 0x80) --size;
    tags.emplace_back(303, rest.substr(0, size));
    rest.erase(0, size);
  }
  tags.emplace_back(301, rest);
}

}  // namespace

ObjectSpec GeoObject(const GeoSpec& geo) {
  std::vector<Tag> tags = {
      {100, kGeoClass}, {90, kObjectVersion}, {330, kModelSpaceHandle}, {70, geo.coordinateType}};
  AppendPoint(tags, 10, geo.designPoint);
  AppendPoint(tags, 11, geo.referencePoint);
  Append(tags, {{40, geo.horizontalUnitScale},
                {91, geo.horizontalUnits},
                {41, geo.verticalUnitScale},
                {92, geo.verticalUnits}});
  AppendPoint(tags, 210, geo.upDirection);
  Append(tags, {{12, geo.northX},
                {22, geo.northY},
                {95, geo.scaleEstimation},
                {141, geo.scaleFactor},
                {294, geo.correctsSeaLevel},
                {142, geo.seaLevelElevation},
                {143, geo.projectionRadius}});
  AppendSystem(tags, geo.coordinateSystem);
  Append(tags, {{302, geo.geoRss},
                {305, geo.observationFrom},
                {306, geo.observationTo},
                {307, geo.observationCoverage},
                {93, 0},
                {96, 0}});
  return CustomObject(kGeoType, tags);
}

}  // namespace drawing

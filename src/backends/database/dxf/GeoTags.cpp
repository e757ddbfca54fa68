#include "backends/database/dxf/GeoTags.h"

#include <array>
#include <bitset>
#include <limits>
#include <numbers>
#include <span>

#include "backends/database/dxf/Lines.h"
#include "backends/database/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using model::GeoData;

constexpr int kVersionCode = 90;
constexpr double kRadiansOfDegree = std::numbers::pi / 180;

// Three numbers under codes of their own.
struct PointRow {
  std::array<int, 3> codes;
  std::array<double, 3> GeoData::*point;
};
struct RealRow {
  int code;
  double GeoData::*number;
};
struct IntegerRow {
  int code;
  int GeoData::*number;
};

constexpr IntegerRow kIntegers[] = {
    {70, &GeoData::coordinateType},
    {91, &GeoData::horizontalUnits},
    {92, &GeoData::verticalUnits},
};

// The first version has one unit for all lengths; where the others keep the reference point it has
// numbers without meaning.
constexpr PointRow kFirstPoints[] = {
    {{41, 40, 42}, &GeoData::referencePoint},
    {{10, 20, 30}, &GeoData::designPoint},
    {{210, 220, 230}, &GeoData::upDirection},
};
constexpr RealRow kFirstReals[] = {{46, &GeoData::horizontalUnitScale}};
constexpr int kNorthAngle = 52;

constexpr PointRow kPoints[] = {
    {{10, 20, 30}, &GeoData::designPoint},
    {{11, 21, 31}, &GeoData::referencePoint},
    {{210, 220, 230}, &GeoData::upDirection},
};
constexpr RealRow kReals[] = {
    {40, &GeoData::horizontalUnitScale}, {41, &GeoData::verticalUnitScale},
    {141, &GeoData::scaleFactor},        {142, &GeoData::seaLevelElevation},
    {143, &GeoData::projectionRadius},
};
constexpr std::array<int, 2> kNorthVector = {12, 22};
constexpr int kSeaLevel = 294;

// Takes the numbers of one version.
class NumberReader {
 public:
  NumberReader(Form form, bool isFirstVersion, GeoTags& geo)
      : form_(form), isFirst_(isFirstVersion), geo_(geo) {}

  void Take(const Tag& tag) {
    for (const IntegerRow& row : kIntegers) {
      if (row.code == tag.code) TakeInteger(tag, geo_.data.*row.number);
    }
    for (const PointRow& row : isFirst_ ? std::span(kFirstPoints) : std::span(kPoints)) {
      for (std::size_t i = 0; i < row.codes.size(); ++i) {
        if (row.codes[i] == tag.code) TakeReal(tag, (geo_.data.*row.point)[i]);
      }
    }
    for (const RealRow& row : isFirst_ ? std::span<const RealRow>(kFirstReals) : kReals) {
      if (row.code == tag.code) TakeReal(tag, geo_.data.*row.number);
    }
    if (isFirst_) {
      if (tag.code == kNorthAngle) TakeReal(tag, degrees_);
      return;
    }
    for (std::size_t i = 0; i < kNorthVector.size(); ++i) {
      if (kNorthVector[i] == tag.code) TakeReal(tag, vector_[i]);
    }
    int flag = 0;
    if (tag.code == kSeaLevel) TakeInteger(tag, flag);
    geo_.data.correctsSeaLevel = geo_.data.correctsSeaLevel || flag != 0;
  }

  void Finish() {
    if (isFirst_) {
      geo_.data.SetNorth(degrees_ * kRadiansOfDegree);
    } else {
      geo_.data.SetNorth(vector_);
    }
  }

 private:
  void TakeReal(const Tag& tag, double& number) {
    if (!ParseReal(form_, tag.value, number)) ItIsUnreadable(tag);
  }

  void TakeInteger(const Tag& tag, int& number) {
    std::int64_t value = 0;
    const bool isRead = ParseInteger(form_, tag.value, value) && value >= 0 &&
                        value <= std::numeric_limits<int>::max();
    if (!isRead) return ItIsUnreadable(tag);
    number = static_cast<int>(value);
  }

  void ItIsUnreadable(const Tag& tag) {
    if (geo_.unreadableAt == kNowhere) geo_.unreadableAt = tag.at;
  }

  Form form_;
  bool isFirst_;
  GeoTags& geo_;
  double degrees_ = 0;
  std::array<double, 2> vector_ = {0, 1};
};

void TakeText(const Tag& tag, GeoTags& geo) {
  geo.coordinateSystem.Take(tag);
  if (tag.code == kGeoRssCode) geo.geoRssTag = tag;
  if (tag.code == kObservationFromCode) geo.observationFrom = tag;
  if (tag.code == kObservationToCode) geo.observationTo = tag;
  if (tag.code == kObservationCoverageCode) geo.observationCoverage = tag;
}

}  // namespace

std::optional<GeoTags> ReadGeoTags(Form form, ObjectTags& tags) {
  Tag tag;
  while (tags.Next(tag) && !(tag.code == kSubclassCode && Trimmed(tag.value) == kGeoDataMarker)) {
  }
  std::int64_t version = 0;
  if (!tags.Next(tag) || tag.code != kVersionCode || !ParseInteger(form, tag.value, version)) {
    return std::nullopt;
  }
  GeoTags geo;
  NumberReader numbers(form, version == 1, geo);
  // Behind the texts stand the points of a mesh, and in the first version more, under codes that
  // had another meaning before.
  std::bitset<512> isTaken;
  while (tags.Next(tag)) {
    const auto code = static_cast<std::size_t>(tag.code);
    if (tag.code < 0 || code >= isTaken.size()) continue;
    if (tag.code != kMoreSystemCode && isTaken[code]) continue;
    isTaken.set(code);
    numbers.Take(tag);
    TakeText(tag, geo);
  }
  numbers.Finish();
  return geo;
}

}  // namespace zdx::dxf

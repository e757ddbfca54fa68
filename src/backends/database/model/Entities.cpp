#include "backends/database/model/Entities.h"

#include <cmath>

namespace zdx::model {
namespace {

constexpr double kRoundingOfAngle = 1e-12;

}  // namespace

void GeoData::SetNorth(std::array<double, 2> vector) {
  northVector = vector;
  const double angle = std::atan2(-vector[0], vector[1]);
  northAngle = std::abs(angle) < kRoundingOfAngle ? 0 : angle;
}

void GeoData::SetNorth(double angle) {
  // The addition and the difference give no negative zero, which would be told with its sign.
  northAngle = angle + 0.0;
  northVector = {0.0 - std::sin(angle), std::cos(angle)};
}

}  // namespace zdx::model

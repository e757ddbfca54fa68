#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "backends/database/model/Entities.h"

namespace {

using zdx::model::GeoData;

TEST(GeoData, ANorthAlongTheYAxisHasNoNegativeZero) {
  for (const double angle : {0.0, -0.0}) {
    GeoData data;
    data.SetNorth(angle);
    EXPECT_FALSE(std::signbit(data.northAngle)) << angle;
    EXPECT_FALSE(std::signbit(data.northVector[0])) << angle;
    EXPECT_THAT(data.northVector, testing::ElementsAre(0.0, 1.0)) << angle;
  }
}

TEST(GeoData, TheTwoFormsOfTheNorthTellTheSame) {
  GeoData byVector;
  byVector.SetNorth({-0.6, 0.8});
  GeoData byAngle;
  byAngle.SetNorth(byVector.northAngle);
  EXPECT_DOUBLE_EQ(byAngle.northVector[0], -0.6);
  EXPECT_DOUBLE_EQ(byAngle.northVector[1], 0.8);
}

}  // namespace

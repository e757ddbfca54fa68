#include <gtest/gtest.h>

#include "backends/walker/Conditions.h"

namespace {

TEST(Conditions, EachStatusHasItsCondition) {
  using zdx::walker::ConditionOf;
  EXPECT_EQ(ConditionOf(76), 2);
  EXPECT_EQ(ConditionOf(77), 3);
  EXPECT_EQ(ConditionOf(1001), 3);
  EXPECT_EQ(ConditionOf(79), 4);
  EXPECT_EQ(ConditionOf(80), 6);
  EXPECT_EQ(ConditionOf(40), 7);
  EXPECT_EQ(ConditionOf(314), 16);
  EXPECT_EQ(ConditionOf(78), 16);
}

TEST(Conditions, AnyOtherStatusMeansThatTheReadingFailed) {
  for (const int status : {1, 2, 3, -1, 75, 81, 1002}) {
    EXPECT_EQ(zdx::walker::ConditionOf(status), 4) << status;
  }
}

}  // namespace

#include <gtest/gtest.h>

#include "backends/database/model/Version.h"

namespace zdx::model {
namespace {

TEST(Version, EveryKnownMagicHasItsNumber) {
  EXPECT_EQ(VersionByMagic("AC1009"), 16);
  EXPECT_EQ(VersionByMagic("AC1014"), 21);
  EXPECT_EQ(VersionByMagic("AC1015"), 23);
  EXPECT_EQ(VersionByMagic("AC1018"), 25);
  EXPECT_EQ(VersionByMagic("AC1021"), 27);
  EXPECT_EQ(VersionByMagic("AC1024"), 29);
  EXPECT_EQ(VersionByMagic("AC1027"), 31);
  EXPECT_EQ(VersionByMagic("AC1032"), 33);
}

TEST(Version, AMagicBetweenTwoCountsAsTheEarlier) {
  EXPECT_EQ(VersionByMagic("AC1013"), kVersion1012);
  EXPECT_EQ(VersionByMagic("AC1016"), kVersion1015);
}

TEST(Version, OlderThanAllIsBelowAC1009) {
  EXPECT_LT(VersionByMagic("AC1006").value(), kVersion1009);
  EXPECT_LT(VersionByMagic("AC2.10").value(), kVersion1009);
}

TEST(Version, NewerThanAllIsAboveAC1032) {
  EXPECT_EQ(VersionByMagic("AC1035"), kVersionUnknownNewer);
}

TEST(Version, OtherTextIsNoMagic) {
  for (const char* text : {"", "AC", "AC10", "AC10321", "MC0.0", "ac1032", "AC10x2", "PNG"}) {
    EXPECT_EQ(VersionByMagic(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace zdx::model

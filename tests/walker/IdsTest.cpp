#include <gtest/gtest.h>

#include <set>

#include "backends/walker/Ids.h"

using zdx::walker::Ids;

namespace {

constexpr std::uint64_t kStep = 0x1000000000000;

TEST(Ids, AFreeOneIsGivenAsItIs) {
  Ids ids;
  EXPECT_EQ(ids.Take(0x2A), 0x2AU);
  EXPECT_EQ(ids.Take(0xFFFFFFFFFFFFFFFF), 0xFFFFFFFFFFFFFFFFU);
}

TEST(Ids, ATakenOneGetsTheSmallestMultipleThatIsFree) {
  Ids ids;
  ids.Take(0x2A + 2 * kStep);
  EXPECT_EQ(ids.Take(0x2A), 0x2AU);
  EXPECT_EQ(ids.Take(0x2A), 0x2AU + kStep);
  EXPECT_EQ(ids.Take(0x2A), 0x2AU + 3 * kStep);
  EXPECT_EQ(ids.Take(0x2A + kStep), 0x2AU + 4 * kStep);
}

TEST(Ids, ZeroIsNeverGiven) {
  Ids ids;
  EXPECT_EQ(ids.Take(0), kStep);
  EXPECT_EQ(ids.Take(0), 2 * kStep);
}

TEST(Ids, AfterTheGreatestMultipleTheSmallestFollows) {
  Ids ids;
  EXPECT_EQ(ids.Take(7 + 0xFFFF * kStep), 7 + 0xFFFF * kStep);
  EXPECT_EQ(ids.Take(7 + 0xFFFF * kStep), 7U);
}

TEST(Ids, WithoutAFreeMultipleTheHighestNumbersFollow) {
  Ids ids;
  ids.Take(0xFFFFFFFFFFFFFFFE);
  for (std::uint64_t count = 1; count < 0x10000; ++count) EXPECT_EQ(ids.Take(0), count * kStep);
  EXPECT_EQ(ids.Take(0), 0xFFFFFFFFFFFFFFFFU);
  EXPECT_EQ(ids.Take(0), 0xFFFFFFFFFFFFFFFDU);
}

// By looking at each taken one every time this would take an hour.
TEST(Ids, ManyThatWantTheSameMultiplesAreToldApartQuickly) {
  Ids ids;
  std::set<std::uint64_t> given;
  std::size_t asked = 0;
  for (int round = 0; round < 3; ++round) {
    for (std::uint64_t multiple = 0; multiple < 0x10000; ++multiple, ++asked) {
      given.insert(ids.Take(0x2A + multiple * kStep));
    }
  }
  EXPECT_EQ(given.size(), asked);
}

}  // namespace

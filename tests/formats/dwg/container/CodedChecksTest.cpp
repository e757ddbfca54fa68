#include <gtest/gtest.h>

#include "backends/database/dwg/container/CodedChecks.h"
#include "support/handmade/CodeWords.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

// Every rest of a group of eight, more than one group, and more than a chunk of the sums.
constexpr std::size_t kSizes[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 164, 272, 0x15B1, 0x15B8};

// The seed of one byte: 0x343FD + 0x269EC3 = 0x29E2C0.  The byte 3 makes the low sum 0xE2C3, and
// the high one 0x29 + 0xE2C3 = 0xE2EC.
TEST(CodedPageSum, OfOneByteGoesOnFromTheSeedOfItsLength) {
  EXPECT_EQ(CodedPageSum("\x03"), 0xE2ECE2C3u);
}

TEST(CodedPageSum, AgreesWithTheFormula) {
  for (const std::size_t size : kSizes) {
    if (size == 0) continue;
    const std::string bytes = handmade::Noise(size);
    EXPECT_EQ(CodedPageSum(bytes), handmade::SlowCodedSum(bytes)) << size;
  }
}

TEST(CodedPageCrc, AgreesWithTheBitByBitFormula) {
  for (const std::size_t size : kSizes) {
    const std::string bytes = handmade::Noise(size);
    EXPECT_EQ(CodedPageCrc(bytes), handmade::SlowCodedCrc(bytes)) << size;
  }
}

// From some length on the first seed reaches into the upper half, where it is joined and not added.
TEST(CodedPageCrc, OfALongPageJoinsItsSeeds) {
  const std::string bytes = handmade::Noise(0xF800);
  EXPECT_EQ(CodedPageCrc(bytes), handmade::SlowCodedCrc(bytes));
}

TEST(CodedHeadCrc, AgreesWithTheBitByBitFormula) {
  for (const std::size_t size : kSizes) {
    const std::string bytes = handmade::Noise(size);
    EXPECT_EQ(CodedHeadCrc(bytes), handmade::SlowHeadCrc(bytes)) << size;
  }
}

TEST(CodedChecks, TakeTheBytesOfAGroupInTheirOwnOrder) {
  EXPECT_EQ(handmade::CheckOrder("01234567"), "67452301");
  EXPECT_EQ(CodedPageCrc("01234567"), handmade::SlowCodedCrc("01234567"));
  EXPECT_NE(CodedPageCrc("01234567"), CodedPageCrc("67452301"));
}

}  // namespace
}  // namespace zdx::dwg

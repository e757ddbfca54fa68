#include <gtest/gtest.h>

#include "backends/database/dwg/bits/Checksums.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

TEST(Crc16, OfNothingIsTheSeed) {
  EXPECT_EQ(Crc16(""), 0xC0C1);
  EXPECT_EQ(Crc16("", 0x1234), 0x1234);
}

// The word 1 loses its only one at the first of eight shifts: 0xA001, shifted seven times more with
// a one falling out at the first of them.
TEST(Crc16, OfOneByteIsItsRowOfTheTable) {
  EXPECT_EQ(Crc16(std::string(1, '\x80'), 0), 0xA001);
  EXPECT_EQ(Crc16(std::string(1, '\x01'), 0), 0xC0C1);
}

TEST(Crc16, OfTheCommonTestTextIsKnown) { EXPECT_EQ(Crc16("123456789", 0), 0xBB3D); }

TEST(Crc16, AgreesWithTheBitByBitFormula) {
  for (const std::size_t size : {1u, 7u, 256u, 5000u}) {
    const std::string bytes = handmade::Noise(size);
    EXPECT_EQ(Crc16(bytes), handmade::SlowCrc16(bytes));
  }
}

TEST(Crc32, OfTheCommonTestTextIsKnown) {
  EXPECT_EQ(Crc32("123456789"), 0xCBF43926u);
  EXPECT_EQ(Crc32(""), 0u);
}

TEST(Crc32, AgreesWithTheBitByBitFormula) {
  const std::string bytes = handmade::Noise(3000);
  EXPECT_EQ(Crc32(bytes), handmade::SlowCrc32(bytes));
}

// Low sums 1, 3, 6; high sums 1, 4, 10.
TEST(PageSum, HasTheSumLowAndTheSumOfSumsHigh) {
  EXPECT_EQ(PageSum(0, "\x01\x02\x03"), 0x000A0006u);
}

// Low 5 + 1 = 6, high 2 + 6 = 8.
TEST(PageSum, GoesOnFromItsSeed) { EXPECT_EQ(PageSum(0x00020005, "\x01"), 0x00080006u); }

TEST(PageSum, OfTwoPartsIsThatOfTheWhole) {
  const std::string bytes = handmade::Noise(1000);
  EXPECT_EQ(PageSum(PageSum(0, bytes.substr(0, 300)), bytes.substr(300)), PageSum(0, bytes));
}

// The greatest sums that a chunk can have, from the greatest seed, stay in 32 bits.
TEST(PageSum, OfTheGreatestBytesDoesNotOverflow) {
  for (const std::size_t size : {0x15B0u, 0x15B1u, 0x7400u}) {
    const std::string bytes(size, '\xFF');
    EXPECT_EQ(PageSum(0xFFFFFFFF, bytes), handmade::SlowPageSum(0xFFFFFFFF, bytes));
    EXPECT_EQ(PageSum(0, bytes), handmade::SlowPageSum(0, bytes));
  }
}

}  // namespace
}  // namespace zdx::dwg

#include <gtest/gtest.h>

#include "support/dwg/Checksums.h"
#include "support/dwg/CodedChecksums.h"
#include "support/dwg/DwgMaker.h"

namespace dwg {
namespace {

using namespace std::string_literals;

// The usual way to tell it: by a polynomial from the most significant bit on, all bits mirrored.
unsigned MirroredCrc16(std::string_view bytes, unsigned crc) {
  const auto mirrored = [](unsigned value, int size) {
    unsigned result = 0;
    for (int i = 0; i < size; ++i) result |= (value >> i & 1) << (size - 1 - i);
    return result;
  };
  crc = mirrored(crc, 16);
  for (const char byte : bytes) {
    crc ^= mirrored(static_cast<unsigned char>(byte), 8) << 8;
    for (int i = 0; i < 8; ++i) crc = (crc << 1 ^ ((crc & 0x8000) != 0 ? 0x8005 : 0)) & 0xFFFF;
  }
  return mirrored(crc, 16);
}

TEST(Checksums, Crc16IsThatOfThePolynomialX16X15X2One) {
  EXPECT_EQ(MirroredCrc16("123456789", 0), 0xBB3Du);
  EXPECT_EQ(Crc16("123456789"), MirroredCrc16("123456789", 0xC0C1));
}

// Other descriptions begin with zero and add a constant for each number of locators.
TEST(Checksums, TheCheckOfAHeadIsOnlyAnotherStartOfTheSameCrc) {
  for (const auto& [version, constant, size] :
       {std::tuple("AC1014", 0x3CC4u, 70u), {"AC1015", 0x8461u, 79u}}) {
    drawing::DrawingSpec spec;
    spec.version = version;
    const std::string head = Make(spec).substr(0, size);
    EXPECT_EQ(Crc16(head), MirroredCrc16(head, 0) ^ constant) << version;
  }
}

TEST(Checksums, Crc32IsTheCommonOne) { EXPECT_EQ(Crc32("123456789"), 0xCBF43926u); }

TEST(Checksums, APageSumThatStartsWithOneIsAdler32) {
  EXPECT_EQ(PageSum(1, "Wikipedia"), 0x11E60398u);
}

TEST(Checksums, APageSumOfManyBytesIsTakenModuloAPrime) {
  // 10000 times 255: the low half is 2550000 modulo 65521, the high half 255 * 10000 * 10001 / 2.
  const std::string bytes(10000, '\xFF');
  EXPECT_EQ(PageSum(0, bytes),
            static_cast<unsigned>(12751275000ull % 0xFFF1u) << 16 | 2550000u % 0xFFF1u);
}

TEST(Checksums, TheMaskIsTheMiddleOfARandomNumberEachTime) {
  // The numbers are 41, 18467, 6334, 26500 and 19169.
  EXPECT_EQ(MaskBytes(5), "\x29\x23\xBE\x84\xE1"s);
}

// The expected values were computed by a reader of real files, apart from the maker.
TEST(CodedChecksums, AgreeWithThoseOfReadFiles) {
  std::string rising;
  for (int i = 0; i < 40; ++i) rising += static_cast<char>(i);
  EXPECT_EQ(CodedPageSum("123456789"), 0x21910485u);
  EXPECT_EQ(CodedPageSum(rising), 0xE81C4157u);
  EXPECT_EQ(CodedCrc64("123456789"), 0x39557F282C02B821u);
  EXPECT_EQ(CodedCrc64(rising), 0xB1DA1599F81B9E40u);
  EXPECT_EQ(HeadCrc64("123456789"), 0xB4268774201869A1u);
  EXPECT_EQ(HeadCrc64(rising), 0xCD15110037FB4BC4u);
}

}  // namespace
}  // namespace dwg

#include <gtest/gtest.h>

#include "backends/database/dwg/container/Decompression.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using namespace std::string_literals;

constexpr std::size_t kMostCoded = 1 << 20;

// A run of eight literals, which keep their order.
const std::string kEight = "\0abcdefgh"s;

std::string WholeCoded(const std::string& stream, std::size_t most = kMostCoded) {
  Decompressed result = DecompressCoded(stream, most);
  EXPECT_TRUE(result.whole);
  return std::move(result.bytes);
}

std::string RestCoded(const std::string& stream, std::size_t most = kMostCoded) {
  Decompressed result = DecompressCoded(stream, most);
  EXPECT_FALSE(result.whole);
  return std::move(result.bytes);
}

// "abcdefgh" and `length` bytes copied one by one from `distance` back.
std::string Copied(std::size_t distance, std::size_t length, std::string text = "abcdefgh") {
  for (std::size_t i = 0; i < length; ++i) text.push_back(text[text.size() - distance]);
  return text;
}

// A run of as many equal literals, for which the order makes no difference.
std::string Equal(std::size_t count) { return std::string(count, 'e'); }

TEST(DecompressCoded, ARunIsEightLongerThanItsOpcode) {
  EXPECT_EQ(WholeCoded(kEight), "abcdefgh");
  EXPECT_EQ(WholeCoded("\x0E" + Equal(22)), Equal(22));
}

TEST(DecompressCoded, TheLongestOpcodeOfARunGoesOnInAByte) {
  EXPECT_EQ(WholeCoded("\x0F\0"s + Equal(23)), Equal(23));
  EXPECT_EQ(WholeCoded("\x0F\xFE" + Equal(23 + 254)), Equal(23 + 254));
}

TEST(DecompressCoded, AFullByteGoesOnInWordsUntilOneIsNotFull) {
  EXPECT_EQ(WholeCoded("\x0F\xFF\0\0"s + Equal(23 + 255)), Equal(23 + 255));
  EXPECT_EQ(WholeCoded("\x0F\xFF\x02\x01" + Equal(23 + 255 + 0x102)), Equal(23 + 255 + 0x102));
  const std::size_t most = 23 + 255 + 0xFFFF + 3;
  EXPECT_EQ(WholeCoded("\x0F\xFF\xFF\xFF\x03\0"s + Equal(most)), Equal(most));
}

TEST(DecompressCoded, AStreamMayBeginWithTheNumberOfItsLiterals) {
  EXPECT_EQ(WholeCoded("\x20\xAA\xBB\x0B"
                       "abc"),
            "cba");
  EXPECT_EQ(WholeCoded("\x2F\xAA\xBB\x01"
                       "a"),
            "a");
}

TEST(DecompressCoded, LiteralsAreBroughtIntoOrder) {
  EXPECT_EQ(WholeCoded("\x01"
                       "abcdefghi"),
            "iabcdefgh");
}

// op >> 4 from 3: length op >> 4, distance (op & 15) + ((a & 0xF8) << 1) + 1.
TEST(DecompressCoded, AShortCopyTellsAllInTwoBytes) {
  EXPECT_EQ(WholeCoded(kEight + "\x37\0"s), Copied(8, 3));
  EXPECT_EQ(WholeCoded(kEight + "\xE0\0"s), Copied(1, 14));
  // The first byte of a run of 32 is the one that stands at 24.
  EXPECT_EQ(WholeCoded("\x0F\x09" + Equal(24) + "z" + Equal(7) + "\x3F\x08"),
            Copied(32, 3, "z" + Equal(31)));
}

// op >> 4 of 1: length (op & 15) + 3, distance a + ((b & 0xF8) << 5) + 1.
TEST(DecompressCoded, AMiddleCopyReachesBack8K) {
  EXPECT_EQ(WholeCoded(kEight + "\x12\x07\0"s), Copied(8, 5));
  const std::string before = Copied(8, 259);
  EXPECT_EQ(WholeCoded(kEight + "\x2B\x07\0\0\0"s + "\x1F\x02\x08"s),
            Copied(2 + 256 + 1, 18, before));
}

// op >> 4 of 0: length (op & 15) + 0x13 + ((b >> 3) & 0x10), distance a + ((b & 0x78) << 5) + 1.
TEST(DecompressCoded, ALongerCopyReachesBack4K) {
  EXPECT_EQ(WholeCoded(kEight + "\x01\x07\0"s), Copied(8, 20));
  EXPECT_EQ(WholeCoded(kEight + "\x01\x07\x80"s), Copied(8, 36));
  const std::string before = Copied(8, 259);
  EXPECT_EQ(WholeCoded(kEight + "\x2B\x07\0\0\0"s + "\xF0\x02\x88"s),
            Copied(2 + 256 + 1, 35, before));
}

// op >> 4 of 2, bit 3 clear: length (op & 7) + (c & 0xF8), distance a | b << 8.
TEST(DecompressCoded, ACopyOfKind2TellsItsDistanceInTwoBytes) {
  EXPECT_EQ(WholeCoded(kEight + "\x23\x08\0\0"s), Copied(8, 3));
  EXPECT_EQ(WholeCoded(kEight + "\x21\x03\0\xF8"s), Copied(3, 249));
}

// Bit 3 set: length (op & 7) + (c << 3) + ((d & 0xF8) << 8) + 0x100, distance one more.
TEST(DecompressCoded, ACopyOfKind2MayBeOfAnyLength) {
  EXPECT_EQ(WholeCoded(kEight + "\x28\x07\0\0\0"s), Copied(8, 256));
  EXPECT_EQ(WholeCoded(kEight + "\x2B\x02\0\x05\x08"s), Copied(3, 3 + 40 + 0x800 + 0x100));
}

TEST(DecompressCoded, TheLastByteOfACopyTellsHowManyLiteralsFollow) {
  EXPECT_EQ(WholeCoded(kEight + "\x37\x02"
                                "xy"),
            "abcdefghabcyx");
  EXPECT_EQ(WholeCoded(kEight + "\x12\x07\x01"
                                "x"),
            Copied(8, 5) + "x");
  EXPECT_EQ(WholeCoded(kEight + "\x23\x08\0\x04wxyz"s), Copied(8, 3) + "wxyz");
}

TEST(DecompressCoded, ACopyMayFollowACopy) {
  EXPECT_EQ(WholeCoded(kEight + "\x37\0\x30\0"s), "abcdefghabcccc");
  EXPECT_EQ(WholeCoded(kEight + "\x37\x01x\x30\0"s), "abcdefghabcxxxx");
}

TEST(DecompressCoded, BehindACopyAnOpcodeBelow16IsARun) {
  EXPECT_EQ(WholeCoded(kEight + "\x37\0"s + "\0ijklmnop"s), "abcdefghabcijklmnop");
}

// There the copies of kind 0 have 0xF before them.
TEST(DecompressCoded, BehindACopyTheKindOf15IsThatOf0) {
  EXPECT_EQ(WholeCoded(kEight + "\x37\0"s + "\xF1\x07\0"s), Copied(8, 20, Copied(8, 3)));
}

TEST(DecompressCoded, ACutRunIsDamage) {
  EXPECT_EQ(RestCoded(""), "");
  EXPECT_EQ(RestCoded("\0abcdefg"s), "");
  EXPECT_EQ(RestCoded("\x20\xAA\xBB\x03"
                      "ab"),
            "");
  EXPECT_EQ(RestCoded("\x0F\xFF\xFF\xFF"), "");
  EXPECT_EQ(RestCoded(kEight + "\x37\x02x"s), "abcdefghabc");
  EXPECT_EQ(RestCoded(kEight + "\x37\x02"s), "abcdefghabc");
}

TEST(DecompressCoded, ARunOfWhichOnlyTheOpcodeIsThereIsDamage) {
  EXPECT_EQ(RestCoded(kEight + "\x37\0\x03"s), "abcdefghabc");
}

TEST(DecompressCoded, ACutCopyIsDamage) {
  for (const std::string& copy : {"\x37"s, "\x12"s, "\x12\x07"s, "\x01"s, "\x01\x07"s, "\x23"s,
                                  "\x23\x08\0"s, "\x2B\x08\0\0"s}) {
    EXPECT_EQ(RestCoded(kEight + copy), "abcdefgh");
  }
}

TEST(DecompressCoded, ACopyFromBeforeTheStartIsDamage) {
  EXPECT_EQ(RestCoded(kEight + "\x38\0"s), "abcdefgh");
  EXPECT_EQ(RestCoded(kEight + "\x12\x08\0"s), "abcdefgh");
  EXPECT_EQ(RestCoded(kEight + "\x23\x09\0\0"s), "abcdefgh");
}

// Only this copy can say that it goes back by nothing.
TEST(DecompressCoded, ACopyFromNowhereIsDamage) {
  EXPECT_EQ(RestCoded(kEight + "\x23\0\0\0"s), "abcdefgh");
}

TEST(DecompressCoded, MoreThanAllowedIsDamage) {
  EXPECT_EQ(WholeCoded(kEight, 8), "abcdefgh");
  EXPECT_EQ(RestCoded(kEight, 7), "");
  EXPECT_EQ(WholeCoded(kEight + "\x37\0"s, 11), "abcdefghabc");
  EXPECT_EQ(RestCoded(kEight + "\x37\0"s, 10), "abcdefgh");
  EXPECT_EQ(RestCoded(kEight + "\x2F\x07\0\xFF\xF8"s, 1000), "abcdefgh");
}

}  // namespace
}  // namespace zdx::dwg

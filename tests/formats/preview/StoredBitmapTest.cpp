#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include "formats/preview/Shown.h"
#include "support/pictures/Pictures.h"

namespace {

using namespace std::string_literals;
using namespace preview_test;
using pictures::BitmapHead;
using pictures::Number;
using zdx::preview::Dib;
using zdx::preview::Showing;

Showing ShowBitmap(const std::string& bytes) {
  return preview_test::Show(zdx::model::StoredPicture::Kind::kBitmap, bytes);
}

TEST(StoredBitmap, KeepsRowsAndSize) {
  const Showing shown = ShowBitmap(pictures::SmallBitmap());
  EXPECT_EQ(DibOf(shown).head().biWidth, 4);
  EXPECT_EQ(DibOf(shown).head().biHeight, 2);
  EXPECT_EQ(DibOf(shown).head().biBitCount, 24);
  EXPECT_EQ(RowsOf(shown), pictures::SmallBitmap().substr(40));
}

TEST(StoredBitmap, ABitmapIsOneBlockAsItsTypeTells) {
  const Showing shown = ShowBitmap(pictures::SmallBitmap());
  const auto* const block = reinterpret_cast<const char*>(DibOf(shown).info());
  EXPECT_EQ(std::string(block, 40 + 24), pictures::SmallBitmap());
}

TEST(StoredBitmap, RowsFromTheTopDownStaySo) {
  BitmapHead head;
  head.height = -2;
  const Showing shown = ShowBitmap(head.Bytes() + std::string(24, 'x'));
  EXPECT_EQ(DibOf(shown).head().biHeight, -2);
}

TEST(StoredBitmap, BytesBehindTheRowsAreLeft) {
  EXPECT_EQ(RowsOf(ShowBitmap(pictures::SmallBitmap() + "more")),
            pictures::SmallBitmap().substr(40));
}

TEST(StoredBitmap, ATableIsAsLongAsTheHeadSays) {
  BitmapHead head{.width = 2, .height = 1, .bits = 8, .coloursUsed = 2};
  const Showing shown = ShowBitmap(head.Bytes() + "\1\2\3\0\4\5\6\0"s + "\0\1\0\0"s);
  EXPECT_EQ(ColoursOf(shown), "\1\2\3\4\5\6"s);
  EXPECT_EQ(RowsOf(shown), "\0\1\0\0"s);
}

TEST(StoredBitmap, ATableWithoutALengthIsFull) {
  for (const auto& [bits, colours] : {std::pair(1, 2), std::pair(4, 16), std::pair(8, 256)}) {
    BitmapHead head{.width = 1, .height = 1, .bits = static_cast<std::uint16_t>(bits)};
    const std::string table(static_cast<std::size_t>(colours) * 4, '\7');
    const Showing shown = ShowBitmap(head.Bytes() + table + "\x80\0\0\0"s);
    EXPECT_EQ(DibOf(shown).colours().size(), static_cast<std::size_t>(colours));
    EXPECT_EQ(RowsOf(shown), "\x80\0\0\0"s);
  }
}

TEST(StoredBitmap, ATableOfATrueColourBitmapIsPassedOver) {
  BitmapHead head{.width = 1, .height = 1, .bits = 24, .coloursUsed = 2};
  const Showing shown = ShowBitmap(head.Bytes() + std::string(8, 'c') + "\1\2\3\0"s);
  EXPECT_EQ(RowsOf(shown), "\1\2\3\0"s);
  EXPECT_TRUE(DibOf(shown).colours().empty());
  EXPECT_EQ(DibOf(shown).head().biClrUsed, 0u);
}

TEST(StoredBitmap, MasksAreKept) {
  BitmapHead head{.width = 2, .height = 1, .bits = 16, .compression = 3};
  const std::string masks = Number(0xF800, 4) + Number(0x07E0, 4) + Number(0x001F, 4);
  const Showing shown = ShowBitmap(head.Bytes() + masks + "\1\2\3\4"s);
  EXPECT_EQ(DibOf(shown).head().biCompression, os::kBitFields);
  const auto* const block = reinterpret_cast<const char*>(DibOf(shown).info());
  EXPECT_EQ(std::string(block + 40, 16), masks + "\1\2\3\4"s);
}

TEST(StoredBitmap, MasksWithinALongHeadAreFound) {
  BitmapHead head{.width = 1, .height = 1, .bits = 32, .compression = 3};
  const std::string masks = Number(0xFF, 4) + Number(0xFF00, 4) + Number(0xFF0000, 4);
  const std::string longHead = Number(108, 4) + head.Bytes().substr(4) + masks;
  const Showing shown =
      ShowBitmap(longHead + std::string(108 - longHead.size(), '\0') + "\1\2\3\4"s);
  const auto* const block = reinterpret_cast<const char*>(DibOf(shown).info());
  EXPECT_EQ(std::string(block + 40, 16), masks + "\1\2\3\4"s);
  EXPECT_EQ(DibOf(shown).head().biSize, 40u);
}

TEST(StoredBitmap, TheOldHeadIsRead) {
  const std::string head =
      Number(12, 4) + Number(2, 2) + Number(1, 2) + Number(1, 2) + Number(1, 2);
  const Showing shown = ShowBitmap(head + "\1\2\3\4\5\6" + "\x40\0\0\0"s);
  EXPECT_EQ(DibOf(shown).head().biWidth, 2);
  EXPECT_EQ(ColoursOf(shown), "\1\2\3\4\5\6"s);
  EXPECT_EQ(RowsOf(shown), "\x40\0\0\0"s);
}

// A bitmap of runs, 4 wide and 2 high, with a full table.
std::string Runs(std::uint16_t bits, const std::string& packed) {
  BitmapHead head{.bits = bits, .compression = bits == 8 ? 1u : 2u};
  return head.Bytes() + std::string(std::size_t{4} << bits, '\7') + packed;
}

TEST(StoredBitmap, RunsOfEightBitsAreUnpacked) {
  EXPECT_EQ(RowsOf(ShowBitmap(Runs(8, "\3\5\1\6\0\0\0\4\1\2\3\4\0\1"s))), "\5\5\5\6\1\2\3\4"s);
}

TEST(StoredBitmap, RunsOfFourBitsAreUnpacked) {
  // A run of three that takes turns; then three single pixels, padded to two bytes.
  EXPECT_EQ(RowsOf(ShowBitmap(Runs(4, "\3\x56\0\0\0\3\x12\x30\0\1"s))),
            "\x56\x50\0\0\x12\x30\0\0"s);
}

TEST(StoredBitmap, AnOddNumberOfSinglePixelsIsPadded) {
  EXPECT_EQ(RowsOf(ShowBitmap(Runs(8, "\0\3\1\2\3\xFF\1\4\0\1"s))), "\1\2\3\4\0\0\0\0"s);
}

TEST(StoredBitmap, WhatRunsStepOverIsTheFirstColour) {
  EXPECT_EQ(RowsOf(ShowBitmap(Runs(8, "\1\5\0\2\1\1\1\6\0\1"s))), "\5\0\0\0\0\0\6\0"s);
}

TEST(StoredBitmap, RunsThatLeaveTheRowAreRefused) {
  EXPECT_FALSE(RefusalOf(ShowBitmap(Runs(8, "\5\5\0\1"s))).empty());
}

TEST(StoredBitmap, RunsThatLeaveThePictureAreRefused) {
  EXPECT_FALSE(RefusalOf(ShowBitmap(Runs(8, "\0\2\0\2\1\5\0\1"s))).empty());
}

TEST(StoredBitmap, RunsWithoutAnEndAreRefused) {
  for (const std::string& packed : {""s, "\1"s, "\1\5"s, "\0\4\1\2\3"s, "\0\2\1"s}) {
    EXPECT_FALSE(RefusalOf(ShowBitmap(Runs(8, packed))).empty()) << packed.size();
  }
}

TEST(StoredBitmap, RunsOfMoreThanAPictureMayTakeAreRefused) {
  BitmapHead head{.width = 65536, .height = 257, .bits = 8, .compression = 1};
  EXPECT_EQ(RefusalOf(ShowBitmap(head.Bytes() + std::string(1024, '\7') + "\0\1"s)),
            L"The picture is too large.");
}

struct OddCase {
  const char* name;
  BitmapHead head;
};

// How a failing test names its case.
void PrintTo(const OddCase& odd, std::ostream* out) { *out << odd.name; }

// A head that is refused, and a picture with nothing else wrong.
class OddHead : public testing::TestWithParam<OddCase> {};

TEST_P(OddHead, IsRefused) {
  EXPECT_FALSE(RefusalOf(ShowBitmap(GetParam().head.Bytes() + std::string(5000, '\7'))).empty());
}

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

INSTANTIATE_TEST_SUITE_P(
    StoredBitmap, OddHead,
    testing::Values(
        OddCase{"NoWidth", BitmapHead{.width = 0}},
        OddCase{"WidthBelowZero", BitmapHead{.width = -4}},
        OddCase{"NoHeight", BitmapHead{.height = 0}},
        OddCase{"TheLeastHeight", BitmapHead{.height = kLeast}},
        OddCase{"TheMostOfBoth", BitmapHead{.width = kMost, .height = kMost}},
        OddCase{"TheMostWidth", BitmapHead{.width = kMost, .height = 1, .bits = 1}},
        OddCase{"TwoPlanes", BitmapHead{.planes = 2}}, OddCase{"NoBits", BitmapHead{.bits = 0}},
        OddCase{"TwoBits", BitmapHead{.bits = 2}}, OddCase{"SixtyFourBits", BitmapHead{.bits = 64}},
        OddCase{"UnknownCompression", BitmapHead{.compression = 4}},
        OddCase{"MasksOf24Bits", BitmapHead{.bits = 24, .compression = 3}},
        OddCase{"RunsOf24Bits", BitmapHead{.bits = 24, .compression = 1}},
        OddCase{"RunsFromTheTop", BitmapHead{.height = -2, .bits = 8, .compression = 1}},
        OddCase{"EqualMasks", BitmapHead{.bits = 16, .compression = 3}},
        OddCase{"TooManyColours", BitmapHead{.bits = 8, .coloursUsed = 257}},
        OddCase{"MoreColoursThanBytes", BitmapHead{.coloursUsed = 0xFFFFFFFF}}),
    [](const auto& info) { return info.param.name; });

TEST(StoredBitmap, AnUnknownKindOfHeadIsRefused) {
  EXPECT_FALSE(RefusalOf(ShowBitmap(Number(41, 4) + std::string(5000, '\1'))).empty());
}

TEST(StoredBitmap, EveryCutIsRefused) {
  BitmapHead head{.width = 2, .height = 1, .bits = 8, .coloursUsed = 2};
  const std::string whole = head.Bytes() + "\1\2\3\0\4\5\6\0"s + "\0\1\0\0"s;
  ASSERT_TRUE(RefusalOf(ShowBitmap(whole)).empty());
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(RefusalOf(ShowBitmap(whole.substr(0, size))).empty()) << size;
  }
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/preview/Shown.h"
#include "support/pictures/Pictures.h"

namespace {

using namespace std::string_literals;
using namespace preview_test;
using pictures::PngSpec;
using zdx::preview::Showing;

Showing ShowPng(const std::string& bytes) {
  return preview_test::Show(zdx::model::StoredPicture::Kind::kPng, bytes);
}

TEST(PngPicture, ColoursOfEightBitsAreExact) {
  PngSpec spec{.width = 1, .height = 2, .rows = "\1\2\3\xFD\xFE\xFF"};
  const Showing shown = ShowPng(pictures::Png(spec));
  EXPECT_EQ(DibOf(shown).head().biBitCount, 24);
  EXPECT_EQ(DibOf(shown).head().biWidth, 1);
  EXPECT_EQ(DibOf(shown).head().biHeight, 2);
  EXPECT_EQ(RowsOf(shown), "\xFF\xFE\xFD\0\3\2\1\0"s) << "from the bottom up";
}

TEST(PngPicture, ColoursOfSixteenBitsKeepTheirHighHalf) {
  PngSpec spec{.depth = 16, .rows = "\x40\x40\x80\x80\xC0\xC0"};
  spec.colourType = 2;
  EXPECT_EQ(RowsOf(ShowPng(pictures::Png(spec))), "\xC0\x80\x40\0"s);
}

TEST(PngPicture, APaletteBecomesTheTable) {
  PngSpec spec{.width = 3, .height = 1, .colourType = 3, .palette = "\1\2\3\4\5\6\7\x8\x9"};
  spec.rows = "\2\0\1"s;
  const Showing shown = ShowPng(pictures::Png(spec));
  EXPECT_EQ(DibOf(shown).head().biBitCount, 8);
  EXPECT_EQ(ColoursOf(shown).substr(0, 9), "\3\2\1\6\5\4\x9\x8\7"s);
  EXPECT_EQ(DibOf(shown).colours().size(), 256u);
  EXPECT_EQ(RowsOf(shown), "\2\0\1\0"s);
}

TEST(PngPicture, APaletteOfFewerBitsIsSpread) {
  for (const auto depth : {std::uint8_t{1}, std::uint8_t{2}, std::uint8_t{4}}) {
    PngSpec spec{.width = 2, .depth = depth, .colourType = 3, .palette = "\1\2\3\4\5\6"};
    spec.rows = std::string(1, static_cast<char>(1 << (8 - 2 * depth)));
    EXPECT_EQ(RowsOf(ShowPng(pictures::Png(spec))), "\0\1\0\0"s) << int{depth};
  }
}

TEST(PngPicture, APaletteWithOpacityLiesOnWhite) {
  PngSpec spec{.width = 2, .colourType = 3, .palette = "\0\0\0\1\2\3"s, .transparency = "\x7F"};
  spec.rows = "\0\1"s;
  const std::string colours = ColoursOf(ShowPng(pictures::Png(spec)));
  // Half black over white, and a colour without a word of opacity.
  EXPECT_EQ(colours.substr(0, 6), "\x80\x80\x80\3\2\1"s);
}

TEST(PngPicture, GreyOfEachDepthHasItsLevels) {
  const struct {
    std::uint8_t depth;
    std::string rows;
  } kGreys[] = {{1, "\x40"}, {2, "\x30"}, {4, "\x0F"}, {8, "\x00\xFF"s}};
  for (const auto& grey : kGreys) {
    PngSpec spec{.width = 2, .depth = grey.depth, .colourType = 0, .rows = grey.rows};
    const Showing shown = ShowPng(pictures::Png(spec));
    ASSERT_EQ(DibOf(shown).head().biBitCount, 8) << int{grey.depth};
    const std::string rows = RowsOf(shown);
    const std::string colours = ColoursOf(shown);
    const auto level = [&](std::size_t x) {
      return colours.substr(static_cast<unsigned char>(rows[x]) * std::size_t{3}, 3);
    };
    EXPECT_EQ(level(0), "\0\0\0"s) << int{grey.depth};
    EXPECT_EQ(level(1), "\xFF\xFF\xFF"s) << int{grey.depth};
  }
}

TEST(PngPicture, AGreyBetweenIsExact) {
  PngSpec spec{.width = 2, .depth = 8, .colourType = 0, .rows = "\x21\x84"};
  const Showing shown = ShowPng(pictures::Png(spec));
  const std::string rows = RowsOf(shown);
  EXPECT_EQ(ColoursOf(shown).substr(static_cast<unsigned char>(rows[0]) * std::size_t{3}, 3),
            "\x21\x21\x21");
  EXPECT_EQ(ColoursOf(shown).substr(static_cast<unsigned char>(rows[1]) * std::size_t{3}, 3),
            "\x84\x84\x84");
}

TEST(PngPicture, GreyOfSixteenBitsComesInColours) {
  PngSpec spec{.depth = 16, .colourType = 0, .rows = "\x84\x84"};
  EXPECT_EQ(RowsOf(ShowPng(pictures::Png(spec))), "\x84\x84\x84\0"s);
}

TEST(PngPicture, GreyWithOpacityLiesOnWhite) {
  PngSpec spec{.width = 2, .colourType = 4, .rows = "\x00\x7F\x10\xFF"s};
  EXPECT_EQ(RowsOf(ShowPng(pictures::Png(spec))), "\x80\x80\x80\x10\x10\x10\0\0"s);
}

TEST(PngPicture, ColoursWithOpacityLieOnWhite) {
  PngSpec spec{.width = 2, .colourType = 6, .rows = "\1\2\3\xFF\1\2\3\0"s};
  EXPECT_EQ(RowsOf(ShowPng(pictures::Png(spec))), "\3\2\1\xFF\xFF\xFF\0\0"s);
}

TEST(PngPicture, AColourThatIsSeenThroughIsWhite) {
  PngSpec spec{.width = 2, .transparency = "\0\1\0\2\0\3"s, .rows = "\1\2\3\4\5\6"};
  EXPECT_EQ(RowsOf(ShowPng(pictures::Png(spec))), "\xFF\xFF\xFF\6\5\4\0\0"s);
}

TEST(PngPicture, MoreThanAPictureMayTakeIsRefused) {
  PngSpec spec{.width = 65536, .height = 257, .rows = "x"};
  EXPECT_EQ(RefusalOf(ShowPng(pictures::Png(spec))), L"The picture is too large.");
}

TEST(PngPicture, EveryCutIsRefused) {
  PngSpec spec{.width = 3, .height = 1, .rows = "123456789"};
  const std::string whole = pictures::Png(spec);
  ASSERT_TRUE(RefusalOf(ShowPng(whole)).empty());
  // The last chunk, of 12 bytes, only says that the picture has ended.
  for (std::size_t size = 0; size < whole.size() - 12; ++size) {
    EXPECT_FALSE(RefusalOf(ShowPng(whole.substr(0, size))).empty()) << size;
  }
}

TEST(PngPicture, AByteThatItsChecksumDoesNotFitIsRefused) {
  PngSpec spec{.width = 3, .height = 1, .colourType = 3, .palette = "\1\2\3\4\5\6"};
  spec.rows = "\0\1\0"s;
  const std::string whole = pictures::Png(spec);
  // From behind the signature to before the last chunk.
  for (std::size_t at = 8; at < whole.size() - 12; ++at) {
    std::string damaged = whole;
    damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
    EXPECT_FALSE(RefusalOf(ShowPng(damaged)).empty()) << at;
  }
}

TEST(PngPicture, APixelBeyondThePaletteHasAColourToo) {
  PngSpec spec{.width = 1, .colourType = 3, .palette = "\1\2\3", .rows = "\xFF"};
  const Showing shown = ShowPng(pictures::Png(spec));
  EXPECT_EQ(DibOf(shown).colours().size(), 256u);
  EXPECT_EQ(RowsOf(shown), "\xFF\0\0\0"s);
}

}  // namespace

#include <gtest/gtest.h>

#include "DisplayWidth.h"

namespace zdx {

namespace {

TEST(DisplayWidth, OfAnEmptyTextIsNothing) { EXPECT_EQ(DisplayWidth(""), 0u); }

TEST(DisplayWidth, OfLatinAndCyrillicLettersIsOneEach) {
  EXPECT_EQ(DisplayWidth("Wall"), 4u);
  EXPECT_EQ(DisplayWidth("\xD0\xBF\xD0\xBB\xD0\xB0\xD0\xBD"), 4u);
}

TEST(DisplayWidth, OfEastAsianWideCharactersIsTwoEach) {
  EXPECT_EQ(DisplayWidth("\xE5\x9B\xB3\xED\x95\x9C"), 4u);
  EXPECT_EQ(DisplayWidth("\xF0\xA0\x80\x80"), 2u);
}

TEST(DisplayWidth, OfHalfWidthFormsIsOne) { EXPECT_EQ(DisplayWidth("\xEF\xBD\xB1"), 1u); }

TEST(DisplayWidth, OfACombiningMarkIsNothing) { EXPECT_EQ(DisplayWidth("e\xCC\x81"), 1u); }

}  // namespace

}  // namespace zdx

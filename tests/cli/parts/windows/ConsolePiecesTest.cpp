#include <gtest/gtest.h>

#include "ConsolePieces.h"

namespace zdx {

namespace {

TEST(ConsolePieces, OfAShortTextAreOne) {
  EXPECT_EQ(FirstPiece(L"", 4), 0u);
  EXPECT_EQ(FirstPiece(L"abcd", 4), 4u);
}

TEST(ConsolePieces, AreAsLongAsTheyMayBe) { EXPECT_EQ(FirstPiece(L"abcdefghij", 4), 4u); }

TEST(ConsolePieces, EndBetweenCharacters) {
  const std::wstring text = L"abc\U0001F4D0d";
  EXPECT_EQ(FirstPiece(text, 4), 3u);
  EXPECT_EQ(FirstPiece(text, 5), 5u);
  EXPECT_EQ(FirstPiece(text.substr(0, 5), 5), 5u);
}

TEST(ConsolePieces, GoOnWhereLoneSurrogatesMakeNoPair) {
  const std::wstring lone(10, static_cast<wchar_t>(0xDC00));
  EXPECT_EQ(FirstPiece(lone, 2), 2u);
}

}  // namespace

}  // namespace zdx

#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "base/CaseFold.h"

namespace zdx {
namespace {

TEST(CaseFold, AsciiLettersFoldAndNothingAroundThem) {
  EXPECT_EQ(FoldCase(U'A'), U'a');
  EXPECT_EQ(FoldCase(U'Z'), U'z');
  EXPECT_EQ(FoldCase(U'@'), U'@');
  EXPECT_EQ(FoldCase(U'['), U'[');
  EXPECT_EQ(FoldCase(U'0'), U'0');
}

TEST(CaseFold, LettersOfOtherScriptsFold) {
  EXPECT_EQ(FoldCase(0x00C4), 0x00E4U);    // A with diaeresis
  EXPECT_EQ(FoldCase(0x0394), 0x03B4U);    // Greek delta
  EXPECT_EQ(FoldCase(0x0416), 0x0436U);    // Cyrillic zhe
  EXPECT_EQ(FoldCase(0x10400), 0x10428U);  // Deseret long I
  EXPECT_EQ(FoldCase(0xFF21), 0xFF41U);    // full-width A
}

TEST(CaseFold, TheThreeGreekSigmasAreOne) {
  EXPECT_EQ(FoldCase(0x03A3), FoldCase(0x03C2));
  EXPECT_EQ(FoldCase(0x03A3), FoldCase(0x03C3));
}

TEST(CaseFold, LettersWithoutCaseStay) {
  EXPECT_EQ(FoldCase(0x3042), 0x3042U);  // Hiragana A
  EXPECT_EQ(FoldCase(0x00DF), 0x00DFU);  // sharp S has two letters as its capital
}

TEST(CaseFold, TextsThatDifferInCaseAloneAreEqual) {
  EXPECT_EQ(CompareIgnoringCase(L"Tavolo", L"tAVOLO"), 0);
  EXPECT_EQ(CompareIgnoringCase(L"", L""), 0);
}

TEST(CaseFold, FoldedTextsAreEqualForThoseThatDifferInCaseAlone) {
  EXPECT_EQ(FoldCase(std::wstring_view(L"Tavolo*9")), L"tavolo*9");
  const std::wstring capital = ZDXEngine::WideFromUtf8("\xF0\x90\x90\x80 \xC3\x84");
  const std::wstring lower = ZDXEngine::WideFromUtf8("\xF0\x90\x90\xA8 \xC3\xA4");
  EXPECT_EQ(FoldCase(capital), lower);
  EXPECT_NE(FoldCase(std::wstring_view(L"Tavolo")), FoldCase(std::wstring_view(L"Tavola")));
}

TEST(CaseFold, CharactersOutsideTheBasicPlaneAreComparedWhole) {
  const std::wstring capital = ZDXEngine::WideFromUtf8("\xF0\x90\x90\x80");
  const std::wstring small = ZDXEngine::WideFromUtf8("\xF0\x90\x90\xA8");
  EXPECT_EQ(CompareIgnoringCase(capital, small), 0);
}

TEST(CaseFold, AShorterTextStandsBeforeTheLongerThatBeginsWithIt) {
  EXPECT_LT(CompareIgnoringCase(L"WALL", L"walls"), 0);
  EXPECT_GT(CompareIgnoringCase(L"walls", L"WALL"), 0);
}

TEST(CaseFold, OrderGoesByFoldedCodePoints) {
  EXPECT_LT(CompareIgnoringCase(L"a", L"B"), 0);
  EXPECT_GT(CompareIgnoringCase(L"b", L"A"), 0);
}

}  // namespace
}  // namespace zdx

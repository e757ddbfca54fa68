#include <gtest/gtest.h>

#include "NamePattern.h"

namespace zdx {

namespace {

TEST(NamePattern, WithoutPatternCharactersMatchesItselfInEitherCase) {
  EXPECT_TRUE(MatchesPattern(L"Plan.dxf", L"pLAN.DXF"));
  EXPECT_TRUE(MatchesPattern(L"\u0447.dxf", L"\u0427.dxf"));
  EXPECT_FALSE(MatchesPattern(L"plan.dxf", L"plan.dx"));
  EXPECT_FALSE(MatchesPattern(L"plan.dx", L"plan.dxf"));
}

TEST(NamePattern, AStarStandsForAnyCharacters) {
  for (const wchar_t* const pattern :
       {L"*", L"*.dxf", L"plan*", L"plan.dxf*", L"*plan.dxf", L"p*n.d*f", L"**n*", L"*.*"}) {
    EXPECT_TRUE(MatchesPattern(L"plan.dxf", pattern)) << pattern;
  }
  for (const wchar_t* const pattern : {L"*.dwg", L"b*", L"*x", L"*.dxf?", L"p*n"}) {
    EXPECT_FALSE(MatchesPattern(L"plan.dxf", pattern)) << pattern;
  }
}

TEST(NamePattern, AStarTakesMoreIfTheRestNeedsIt) {
  EXPECT_TRUE(MatchesPattern(L"a.dxf.dxf", L"*.dxf"));
  EXPECT_TRUE(MatchesPattern(L"aab", L"*ab"));
  EXPECT_FALSE(MatchesPattern(L"a.dxf.bak", L"*.dxf"));
}

TEST(NamePattern, ALongerEndingIsNoMatch) { EXPECT_FALSE(MatchesPattern(L"a.dxfx", L"*.dxf")); }

TEST(NamePattern, AQuestionMarkStandsForOneCharacter) {
  EXPECT_TRUE(MatchesPattern(L"plan1.dxf", L"plan?.dxf"));
  EXPECT_FALSE(MatchesPattern(L"plan.dxf", L"plan?.dxf"));
  EXPECT_FALSE(MatchesPattern(L"plan12.dxf", L"plan?.dxf"));
}

TEST(NamePattern, ManyStarsAreSoonDone) {
  EXPECT_FALSE(MatchesPattern(std::wstring(250, L'a'), L"*a*a*a*a*a*a*a*a*a*a*a*a*a*a*a*b"));
}

TEST(NameOrder, GoesByNamesWhateverTheirCase) {
  EXPECT_TRUE(ComesBefore(L"a", L"B"));
  EXPECT_FALSE(ComesBefore(L"B", L"a"));
  EXPECT_TRUE(ComesBefore(L"A", L"a"));
  EXPECT_FALSE(ComesBefore(L"a", L"A"));
  EXPECT_FALSE(ComesBefore(L"a", L"a"));
  EXPECT_TRUE(ComesBefore(L"a", L"a1"));
}

}  // namespace

}  // namespace zdx

#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"

namespace ZDXEngine {
namespace {

TEST(Utf8, CharactersOutsideTheBasicPlaneSurviveBothWays) {
  const std::string bytes = "a\xC3\xA9\xE5\x9B\xB3\xF0\x9F\x93\x90";
  const std::wstring text = WideFromUtf8(bytes);
  EXPECT_EQ(text.size(), sizeof(wchar_t) == 2 ? 5u : 4u);
  EXPECT_EQ(BytesFromWide(text), bytes);
  EXPECT_EQ(Utf8FromWide(text), bytes);
}

TEST(Utf8, EveryByteSurvivesTheTripBothWays) {
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(BytesFromWide(WideFromUtf8(all)), all);
}

TEST(Utf8, AnInvalidByteBecomesALoneSurrogate) {
  EXPECT_EQ(WideFromUtf8("\xFF"), std::wstring(1, static_cast<wchar_t>(0xDCFF)));
}

TEST(Utf8, OverlongAndSurrogateSequencesAreInvalidBytes) {
  EXPECT_EQ(WideFromUtf8("\xC0\xAF").size(), 2u);
  EXPECT_EQ(WideFromUtf8("\xED\xA0\x80").size(), 3u);
  EXPECT_EQ(BytesFromWide(WideFromUtf8("\xED\xA0\x80")), "\xED\xA0\x80");
}

TEST(Utf8, ASequenceCutByTheEndIsInvalidBytes) {
  EXPECT_EQ(BytesFromWide(WideFromUtf8("\xE5\x9B")), "\xE5\x9B");
}

TEST(Utf8, TextForDisplayIsAlwaysValid) {
  const std::wstring lone = {L'a', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0xDCFF)};
  EXPECT_EQ(Utf8FromWide(L"a" + std::wstring(1, static_cast<wchar_t>(0xDCFF))), "a\xEF\xBF\xBD");
  EXPECT_EQ(Utf8FromWide(std::wstring(1, static_cast<wchar_t>(0xD800))), "\xEF\xBF\xBD");
  EXPECT_FALSE(Utf8FromWide(lone).empty());
}

TEST(Utf8, APairOfSurrogatesIsOneCharacter) {
  const std::wstring pair = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDCD0)};
  EXPECT_EQ(Utf8FromWide(pair), "\xF0\x9F\x93\x90");
}

}  // namespace
}  // namespace ZDXEngine

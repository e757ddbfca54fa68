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

TEST(Utf8, EveryByteSurvivesTheTripBothWaysWhereNamesAreBytes) {
  if (sizeof(wchar_t) == 2) GTEST_SKIP() << "names are 16-bit units here";
  std::string all;
  for (int byte = 1; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  EXPECT_EQ(BytesFromWide(WideFromUtf8(all)), all);
}

TEST(Utf8, AnInvalidByteBecomesALoneSurrogate) {
  EXPECT_EQ(WideFromUtf8("\xFF"), std::wstring(1, static_cast<wchar_t>(0xDCFF)));
}

TEST(Utf8, EveryUnitSurvivesTheTripBothWaysWhereNamesAreUnits) {
  if (sizeof(wchar_t) != 2) GTEST_SKIP() << "names are bytes here";
  std::wstring all;
  // Downwards, so that no two surrogates make a pair: the low ones stand before the high ones.
  for (unsigned unit = 0xFFFF; unit > 0; --unit) all.push_back(static_cast<wchar_t>(unit));
  EXPECT_EQ(WideFromUtf8(BytesFromWide(all)), all);
}

TEST(Utf8, AnOverlongSequenceIsInvalidBytes) {
  EXPECT_EQ(WideFromUtf8("\xC0\xAF"),
            (std::wstring{static_cast<wchar_t>(0xDCC0), static_cast<wchar_t>(0xDCAF)}));
}

TEST(Utf8, AnOverlongSequenceOfAnyLengthIsInvalidBytes) {
  EXPECT_EQ(WideFromUtf8("\xE0\x9F\xBF"), L"\xDCE0\xDC9F\xDCBF");
  EXPECT_EQ(WideFromUtf8("\xF0\x8F\xBF\xBF"), L"\xDCF0\xDC8F\xDCBF\xDCBF");
}

TEST(Utf8, ASurrogateBeforeAnotherCharacterStaysAlone) {
  EXPECT_EQ(Utf8FromWide(L"\xD800\xE000"), "\xEF\xBF\xBD\xEE\x80\x80");
  EXPECT_EQ(Utf8FromWide(L"\xD800\xDBFF"), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf8, ASurrogateThatStandsForNoByteIsItsOwnNumber) {
  EXPECT_EQ(BytesFromWide(L"\xDC41"), "\xED\xB1\x81");
  EXPECT_EQ(BytesFromWide(L"\xDD00"), "\xED\xB4\x80");
}

TEST(Utf8, ANumberThatIsNoCharacterIsReplaced) {
  if (sizeof(wchar_t) == 2) GTEST_SKIP() << "no unit is so large here";
  const std::wstring text(1, static_cast<wchar_t>(0x110000));
  EXPECT_EQ(BytesFromWide(text), "\xEF\xBF\xBD");
  EXPECT_EQ(Utf8FromWide(text), "\xEF\xBF\xBD");
}

TEST(Utf8, TheBytesOfASurrogateAreOneWhereNamesAreUnitsAndElseInvalid) {
  EXPECT_EQ(WideFromUtf8("\xED\xA0\x80").size(), sizeof(wchar_t) == 2 ? 1u : 3u);
  EXPECT_EQ(WideFromUtf8("\xED\x9F\xBF"), std::wstring(1, static_cast<wchar_t>(0xD7FF)));
  EXPECT_EQ(BytesFromWide(WideFromUtf8("\xED\xA0\x80")), "\xED\xA0\x80");
}

TEST(Utf8, TheBytesOfASurrogateAreNoValidSequence) {
  char32_t point = 0;
  EXPECT_EQ(utf8_detail::SequenceAt("\xED\xA0\x80", 0, point), 0u);
}

TEST(Utf8, ASequenceCutByTheEndIsInvalidBytes) {
  for (const char* const cut : {"\xE5\x9B", "\xED\xA0", "\xED"}) {
    const std::wstring text = WideFromUtf8(cut);
    EXPECT_EQ(text.size(), std::char_traits<char>::length(cut));
    EXPECT_EQ(text[0], static_cast<wchar_t>(0xDC00 + static_cast<unsigned char>(cut[0])));
  }
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

#include <gmock/gmock.h>

#include "ReadableText.h"

namespace zdx {

namespace {

using ::testing::ElementsAre;

TEST(ReadableText, KeepsOrdinaryTextOfAnyScript) {
  EXPECT_EQ(ReadableText(L"C:\\plans \u56F3 \u00E9"), "C:\\plans \xE5\x9B\xB3 \xC3\xA9");
}

TEST(ReadableText, ShowsControlCharactersByNumber) {
  EXPECT_EQ(ReadableText(L"a\x1B[0m\x7F\t\r\nb"), "a\\x1b[0m\\x7f\\x09\\x0d\\x0ab");
  EXPECT_EQ(ReadableText(L"\x9B"), "\\u009b");
}

TEST(ReadableText, ShowsWhatTurnsTheDirectionByNumber) {
  EXPECT_EQ(ReadableText(L"\x202A\x202E\x2066\x2069"), "\\u202a\\u202e\\u2066\\u2069");
}

TEST(ReadableText, KeepsTheNeighboursOfWhatTurnsTheDirection) {
  EXPECT_EQ(ReadableText(L"\x2027\x202F"), "\xE2\x80\xA7\xE2\x80\xAF");
}

TEST(ReadableText, IsValidUtf8ForALoneSurrogate) {
  const std::wstring lone(1, static_cast<wchar_t>(0xD800));
  EXPECT_EQ(ReadableText(lone), "\xEF\xBF\xBD");
}

TEST(ReadableLines, AreCutAtLineFeedsOfBothSystems) {
  EXPECT_THAT(ReadableLines(L"one\r\ntwo\n\nfour"), ElementsAre("one", "two", "", "four"));
}

TEST(ReadableLines, OfAnEmptyTextAreOneEmptyLine) {
  EXPECT_THAT(ReadableLines(L""), ElementsAre(""));
}

TEST(ReadableLines, ShowACarriageReturnThatEndsNoLine) {
  EXPECT_THAT(ReadableLines(L"a\rb\r"), ElementsAre("a\\x0db\\x0d"));
}

}  // namespace

}  // namespace zdx

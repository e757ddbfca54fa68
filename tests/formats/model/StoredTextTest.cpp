#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "backends/database/model/StoredText.h"

namespace zdx::model {
namespace {

using ZDXEngine::Utf8FromWide;
using ZDXEngine::WideFromUtf8;

// Decodes one text as a file of `version` and `page` means it.
struct Decoded {
  Decoded(Version version, CodePageId page, std::string_view bytes, TextUse use = TextUse::kValue,
          ControlCharacters controls = ControlCharacters::kCaret)
      : text(StoredTextDecoder(version, page, controls).Decode(bytes, use, flaws)) {}

  TextFlaws flaws;
  std::wstring text;
};

TEST(StoredText, OlderVersionsAreInTheirCodePage) {
  EXPECT_EQ(Decoded(kVersion1018, 1251, "\xCF\xEB\xE0\xED").text, WideFromUtf8("План"));
}

TEST(StoredText, Utf8BeginsWithAC1021) {
  EXPECT_EQ(Decoded(kVersion1021, 1251, "План").text, WideFromUtf8("План"));
  EXPECT_NE(Decoded(kVersion1018, 1251, "План").text, WideFromUtf8("План"));
}

TEST(StoredText, TextThatIsNotUtf8FallsBackToTheCodePageAndIsToldOf) {
  const Decoded decoded(kVersion1032, 1252, "caf\xE9");
  EXPECT_EQ(decoded.text, WideFromUtf8("café"));
  EXPECT_TRUE(decoded.flaws.notInEncoding);
}

TEST(StoredText, TextThatIsNotInTheCodePageFallsBackToUtf8AndIsToldOf) {
  // The second byte has no meaning as Western.
  const Decoded decoded(kVersion1015, 1252, "\xC3\x81rea");
  EXPECT_EQ(decoded.text, WideFromUtf8("Área"));
  EXPECT_TRUE(decoded.flaws.notInEncoding);
}

TEST(StoredText, InATextThatIsInNeitherAStrayByteIsWestern) {
  const Decoded decoded(kVersion1032, 932, "a\x81");
  EXPECT_EQ(decoded.text, (std::wstring{L'a', static_cast<wchar_t>(0x81)}));
  EXPECT_TRUE(decoded.flaws.notInEncoding);
}

TEST(StoredText, ValidTextHasNoFlaws) {
  const Decoded decoded(kVersion1032, 1252, "é");
  EXPECT_FALSE(decoded.flaws.notInEncoding);
  EXPECT_FALSE(decoded.flaws.hasNul);
}

TEST(StoredText, NulCharactersAreLeftOutAndToldOf) {
  const Decoded decoded(kVersion1032, 1252, std::string_view("a\0b", 3));
  EXPECT_EQ(decoded.text, L"ab");
  EXPECT_TRUE(decoded.flaws.hasNul);
}

TEST(StoredText, AUnitEscapeIsItsCharacterInOlderVersions) {
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\U+56F3 \\U+00e9").text, WideFromUtf8("図 é"));
}

TEST(StoredText, TwoUnitEscapesOfAPairAreOneCharacter) {
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\U+D83D\\U+DCD0").text, WideFromUtf8("📐"));
}

TEST(StoredText, ALoneUnitOfAPairIsKept) {
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\U+D83Dx").text,
            (std::wstring{static_cast<wchar_t>(0xD83D), L'x'}));
}

TEST(StoredText, WhatOnlyLooksLikeAnEscapeStays) {
  for (const char* text : {"\\U+12", "\\U+00G0", "\\u+00E9", "\\U00E9", "\\M+600E9", "\\M+", "\\",
                           "\\U+", "\\M+1", "C:\\Users"}) {
    EXPECT_EQ(Utf8FromWide(Decoded(kVersion1015, 1252, text).text), text);
  }
}

TEST(StoredText, FromAC1021OnAUnitEscapeInAValueIsTheDraftersOwnText) {
  EXPECT_EQ(Decoded(kVersion1021, 1252, "94\\U+00B0").text, L"94\\U+00B0");
}

TEST(StoredText, InANameAUnitEscapeIsItsCharacterInEveryVersion) {
  EXPECT_EQ(Decoded(kVersion1032, 1252, "T\\U+00FC", TextUse::kName).text, WideFromUtf8("Tü"));
}

TEST(StoredText, ADoubleByteEscapeGoesByThePageItNames) {
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\M+1907D").text, WideFromUtf8("図"));
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\M+2B4FA").text, WideFromUtf8("測"));
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\M+3B0A1").text, WideFromUtf8("가"));
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\M+48861").text, WideFromUtf8("가"));
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\M+5CDBC").text, WideFromUtf8("图"));
}

TEST(StoredText, CaretEscapesAreControlCharactersInEveryVersion) {
  for (const Version version : {kVersion1009, kVersion1015, kVersion1032}) {
    EXPECT_EQ(Decoded(version, 1252, "a^Jb^Ic^Md").text, L"a\nb\tc\rd");
  }
}

TEST(StoredText, ACaretAndABlankAreACaret) {
  EXPECT_EQ(Decoded(kVersion1032, 1252, "x^ 2").text, L"x^2");
}

TEST(StoredText, ACaretBeforeAnythingElseStays) {
  EXPECT_EQ(Decoded(kVersion1032, 1252, "a^b").text, L"a^b");
  EXPECT_EQ(Decoded(kVersion1032, 1252, "a^").text, L"a^");
}

TEST(StoredText, ACaretThatComesFromAnEscapeIsNotTheBeginOfAnother) {
  EXPECT_EQ(Decoded(kVersion1015, 1252, "\\U+005EJ").text, L"^J");
  EXPECT_EQ(Decoded(kVersion1015, 1252, "^ J").text, L"^J");
}

TEST(StoredText, ATrailByteOfADoubleByteCharacterIsNoEscape) {
  // The second bytes are those of a caret and of a backslash.
  EXPECT_EQ(Decoded(kVersion1015, 932, "\x83\x5EJ").text, WideFromUtf8("タJ"));
  EXPECT_EQ(Decoded(kVersion1015, 932, "\x95\x5CU+0041").text, WideFromUtf8("表U+0041"));
}

TEST(StoredText, AFormatWithoutCaretsKeepsThem) {
  const Decoded decoded(kVersion1032, 1252, "a^Jb", TextUse::kValue, ControlCharacters::kPlain);
  EXPECT_EQ(decoded.text, L"a^Jb");
}

}  // namespace
}  // namespace zdx::model

#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "base/CodePage.h"

namespace zdx {
namespace {

using ZDXEngine::WideFromUtf8;

TEST(CodePage, NamesAreKnownInAnyCase) {
  EXPECT_EQ(CodePageByName("ANSI_1252"), 1252);
  EXPECT_EQ(CodePageByName("ansi_932"), 932);
  EXPECT_EQ(CodePageByName("dos850"), 850);
  EXPECT_EQ(CodePageByName("ISO8859-5"), 28595);
  EXPECT_EQ(CodePageByName("ISO8859-6"), 28596);
  EXPECT_EQ(CodePageByName("DOS737"), 737);
  EXPECT_EQ(CodePageByName("DOS775"), 775);
  EXPECT_EQ(CodePageByName("DOS28592"), 28592);
  EXPECT_EQ(CodePageByName("JOHAB"), 1361);
  EXPECT_EQ(CodePageByName("BIG5"), 950);
  EXPECT_EQ(CodePageByName("GB2312"), 936);
  EXPECT_EQ(CodePageByName("KSC5601"), 949);
  EXPECT_EQ(CodePageByName("MAC-ROMAN"), 10000);
}

TEST(CodePage, OtherNamesAreNotKnown) {
  for (const char* name : {"", "ANSI_", "ANSI_12", "ANSI_99999", "ANSI_1252x", "ANSI_-1", "pages",
                           "ISO850", "ANSI_000000000000001252"}) {
    EXPECT_EQ(CodePageByName(name), std::nullopt) << name;
  }
}

TEST(CodePage, WesternDecodesItsHighHalf) {
  EXPECT_EQ(CodePageDecoder(1252).Decode("caf\xE9 \x80"), WideFromUtf8("café €"));
}

TEST(CodePage, WesternRefusesTheBytesItLacks) {
  EXPECT_EQ(CodePageDecoder(1252).Decode("a\x81"), std::nullopt);
}

TEST(CodePage, LenientlyEveryByteHasACharacter) {
  std::string all;
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  const std::wstring text = CodePageDecoder(1252).DecodeLeniently(all);
  ASSERT_EQ(text.size(), 256u);
  EXPECT_EQ(text[0x81], static_cast<wchar_t>(0x81));
  EXPECT_EQ(text[0x80], static_cast<wchar_t>(0x20AC));
  EXPECT_EQ(text[0x8C], static_cast<wchar_t>(0x0152));
  for (std::size_t byte = 0xA0; byte < 256; ++byte) {
    EXPECT_EQ(text[byte], static_cast<wchar_t>(byte));
  }
}

TEST(CodePage, LenientlyAStrayByteCostsOnlyItself) {
  EXPECT_EQ(CodePageDecoder(1253).DecodeLeniently("\xCF\xFF\xEA"), WideFromUtf8("Οÿκ"));
  EXPECT_EQ(CodePageDecoder(932).DecodeLeniently("\x96\xCA\x90"),
            WideFromUtf8("面") + static_cast<wchar_t>(0x90));
}

TEST(CodePage, ALongTextKeepsEveryCharacter) {
  // More than is converted at a time, with characters of one byte and of two.
  std::string bytes;
  std::string expected;
  for (int i = 0; i < 3000; ++i) {
    bytes += "a\x96\xCA";
    expected += "a面";
  }
  EXPECT_EQ(CodePageDecoder(932).Decode(bytes), WideFromUtf8(expected));
  EXPECT_EQ(CodePageDecoder(932).DecodeLeniently(bytes + '\x90'),
            WideFromUtf8(expected) + static_cast<wchar_t>(0x90));
}

TEST(CodePage, ALongTextOfStrayBytesKeepsThemAll) {
  // A cost that grows with the square of the length would never come to an end.
  constexpr std::size_t kLength = 300'000;
  EXPECT_EQ(CodePageDecoder(932).DecodeLeniently(std::string(kLength, '\xFF')),
            std::wstring(kLength, static_cast<wchar_t>(0xFF)));
  EXPECT_EQ(CodePageDecoder(1251).DecodeLeniently(std::string(kLength, '\x98')),
            std::wstring(kLength, static_cast<wchar_t>(0x2DC)));
}

TEST(CodePage, ALetterThatWaitsForAnAccentIsNotLostAtTheEnd) {
  EXPECT_EQ(CodePageDecoder(1258).Decode("\xD0\x61"), WideFromUtf8("Đa"));
  EXPECT_EQ(CodePageDecoder(1255).Decode("\xF9\xEC\xE0"), WideFromUtf8("שלא"));
}

TEST(CodePage, JohabKeepsTheBackslash) {
  EXPECT_EQ(CodePageDecoder(1361).Decode("C:\\\x88\x61"), WideFromUtf8("C:\\가"));
}

TEST(CodePage, ArabicOfDosKeepsThePercentSign) {
  EXPECT_EQ(CodePageDecoder(864).Decode("%%c12"), L"%%c12");
}

TEST(CodePage, BytesThatAPageLeavesOpenMeanNothing) {
  struct Open {
    int page;
    const char* bytes;
  };
  for (const Open& open :
       {Open{874, "\x81"}, Open{932, "\x80"}, Open{936, "\xA1\x40"}, Open{949, "\x80"},
        Open{1250, "\x81"}, Open{1251, "\x98"}, Open{1253, "\x81"}, Open{1254, "\x8D"},
        Open{1255, "\x81"}, Open{1257, "\x81"}, Open{1258, "\x8A"}, Open{869, "\x80"},
        Open{1253, "\x9F"}, Open{932, "\xFD"}, Open{949, "\xA2\xE8"}, Open{950, "\xFA\x40"}}) {
    EXPECT_EQ(CodePageDecoder(open.page).Decode(open.bytes), std::nullopt) << open.page;
  }
}

TEST(CodePage, EveryStandardPageHasItsOwnLetters) {
  struct Letter {
    CodePageId page;
    const char* byte;
    const char* letter;
  };
  for (const Letter& row :
       {Letter{28591, "\xE9", "é"}, Letter{28592, "\xB1", "ą"}, Letter{28593, "\xA1", "Ħ"},
        Letter{28594, "\xA2", "ĸ"}, Letter{28595, "\xB0", "А"}, Letter{28596, "\xC7", "ا"},
        Letter{28597, "\xE1", "α"}, Letter{28598, "\xE0", "א"}, Letter{28599, "\xD0", "Ğ"}}) {
    EXPECT_EQ(CodePageDecoder(row.page).Decode(row.byte), WideFromUtf8(row.letter)) << row.page;
  }
}

TEST(CodePage, TheControlCharactersOfAStandardPageAreItsOwn) {
  for (CodePageId page = 28591; page <= 28599; ++page) {
    EXPECT_EQ(CodePageDecoder(page).Decode("\x85"), std::wstring(1, static_cast<wchar_t>(0x85)))
        << page;
  }
}

TEST(CodePage, ThePlacesThatAPageLeavesToUsersAreKept) {
  EXPECT_EQ(CodePageDecoder(932).Decode("\xF0\x40\xF9\xFC"), L"\xE000\xE757");
  EXPECT_EQ(CodePageDecoder(950).Decode("\xC6\xA1\xC8\xFE"), L"\xF6B1\xF848");
}

TEST(CodePage, TheMacsPageHasTheSignsOfUnits) {
  EXPECT_EQ(CodePageDecoder(10000).Decode("\xBD\xC6"), L"\x2126\x2206");
}

TEST(CodePage, LenientlyBytesThatAKoreanPageLeavesOpenAreNotLost) {
  EXPECT_EQ(CodePageDecoder(949).DecodeLeniently("a\xA2\xE8 \xB0\xA1"), WideFromUtf8("a¢è 가"));
  EXPECT_EQ(CodePageDecoder(949).DecodeLeniently("\xA2\xE8"), WideFromUtf8("¢è"));
}

TEST(CodePage, CyrillicGreekAndJapaneseDecode) {
  EXPECT_EQ(CodePageDecoder(1251).Decode("\xCF\xEB\xE0\xED"), WideFromUtf8("План"));
  EXPECT_EQ(CodePageDecoder(1253).Decode("\xD3\xF7\xDD\xE4\xE9\xEF"), WideFromUtf8("Σχέδιο"));
  EXPECT_EQ(CodePageDecoder(932).Decode("\x90\x7D\x96\xCA"), WideFromUtf8("図面"));
}

TEST(CodePage, ATrailByteThatLooksLikeABackslashBelongsToItsCharacter) {
  EXPECT_EQ(CodePageDecoder(932).Decode("\x95\x5C"), WideFromUtf8("表"));
}

TEST(CodePage, AHalfCharacterIsRefused) {
  EXPECT_EQ(CodePageDecoder(932).Decode("\x90"), std::nullopt);
}

TEST(CodePage, ADecoderForgetsWhatItRefused) {
  CodePageDecoder decoder(932);
  EXPECT_EQ(decoder.Decode("\x90"), std::nullopt);
  EXPECT_EQ(decoder.Decode("\x96\xCA"), WideFromUtf8("面"));
}

TEST(CodePage, Utf8RefusesWhatIsNotValid) {
  CodePageDecoder decoder(kUtf8);
  EXPECT_EQ(decoder.Decode("\xC3\xA9"), WideFromUtf8("é"));
  for (const char* bytes : {"\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"}) {
    EXPECT_EQ(decoder.Decode(bytes), std::nullopt);
  }
}

TEST(CodePage, EveryNameLeadsToAPageThatDecodes) {
  for (const char* name :
       {"ASCII",     "ISO8859-1", "ISO8859-2", "ISO8859-3", "ISO8859-4", "ISO8859-5", "ISO8859-6",
        "ISO8859-7", "ISO8859-8", "ISO8859-9", "DOS437",    "DOS850",    "DOS852",    "DOS855",
        "DOS857",    "DOS860",    "DOS861",    "DOS863",    "DOS864",    "DOS865",    "DOS866",
        "DOS869",    "DOS932",    "MAC-ROMAN", "BIG5",      "KSC5601",   "JOHAB",     "GB2312",
        "ANSI_874",  "ANSI_932",  "ANSI_936",  "ANSI_949",  "ANSI_950",  "ANSI_1250", "ANSI_1251",
        "ANSI_1252", "ANSI_1253", "ANSI_1254", "ANSI_1255", "ANSI_1256", "ANSI_1257", "ANSI_1258",
        "ANSI_1361"}) {
    const auto page = CodePageByName(name);
    ASSERT_TRUE(page) << name;
    EXPECT_EQ(CodePageDecoder(*page).Decode("Az9 "), L"Az9 ") << name;
  }
}

}  // namespace
}  // namespace zdx

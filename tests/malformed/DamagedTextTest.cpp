// Damaged text files: what is unreadable costs only itself, and the warning tells the line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "malformed/Cost.h"
#include "malformed/Damage.h"
#include "support/PublicRead.h"
#include "support/dxf/Tokens.h"

namespace {

using damage::Replaced;
using damage::SoundText;
using damage::Without;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using zdx_test::kSummary;
using zdx_test::ReadBytes;
using zdx_test::Reading;

// The entry of the root dictionary that leads to the groups, up to its handle.
const std::string kGroupEntry = std::string("  3\n") + drawing::kGroupKey + "\n350\n";

// The number of the line that begins with the first `text`.
std::uint64_t LineOf(const std::string& bytes, const std::string& text) {
  const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(bytes.find(text));
  return static_cast<std::uint64_t>(std::count(bytes.begin(), end, '\n')) + 1;
}

void ExpectWarningAt(const Reading& reading, std::uint64_t line) {
  std::vector<std::uint64_t> lines;
  for (const auto& warning : reading.diagnostics.warnings) {
    if (warning.place.line) lines.push_back(*warning.place.line);
  }
  EXPECT_THAT(lines, Contains(line));
}

TEST(DamagedText, WithoutItsEndMarkOpensInFull) {
  const Reading reading = ReadBytes(Without(SoundText(), "  0\nEOF\n"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre("Pair"));
}

TEST(DamagedText, WithoutTheLastLineEndOpensInFull) {
  std::string text = SoundText();
  text.pop_back();
  EXPECT_THAT(ReadBytes(text).Texts(L"Group Name"), ElementsAre("Pair"));
}

TEST(DamagedText, ASectionWithoutItsEndIsReadAndToldOf) {
  const std::string text = Replaced(SoundText(), "ENDTAB\n  0\nENDSEC\n", "ENDTAB\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre("Pair"));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedText, ATableWithoutItsEndIsRead) {
  EXPECT_THAT(ReadBytes(Without(SoundText(), "  0\nENDTAB\n")).Texts(L"Layer Name"),
              ElementsAre("0", "First", "Second", "Third"));
}

TEST(DamagedText, WrongCountsAreNotBelieved) {
  std::string text = SoundText();
  for (std::size_t at = 0; (at = text.find("\n 70\n", at)) != std::string::npos;) {
    const std::size_t value = at + 5;
    text.replace(value, text.find('\n', value) - value, "9999999");
    at = value;
  }
  EXPECT_THAT(ReadBytes(text).Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DamagedText, ABlankLineBetweenTagsIsPassedOver) {
  const std::string text = Replaced(SoundText(), "  2\nSecond\n", "\n  2\nSecond\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_EQ(reading.diagnostics.warningCount, 1u);
  ExpectWarningAt(reading, LineOf(text, "\n  2\nSecond\n"));
}

TEST(DamagedText, ALostCodeLineCostsItsRecordAlone) {
  const std::string text = Replaced(SoundText(), "  2\nSecond\n", "Second\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Third"));
  EXPECT_EQ(reading.diagnostics.warningCount, 1u);
  ExpectWarningAt(reading, LineOf(text, "\nSecond\n") + 1);
}

TEST(DamagedText, DamageInTheHeaderCostsItsVariableAlone) {
  const std::string text = Replaced(SoundText(), "  9\n$TITLE\n  1\n", "  9\n$TITLE\nrubbish\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(kSummary, L"2"), ElementsAre());
  EXPECT_THAT(reading.Texts(kSummary, L"3"), ElementsAre(""));
  EXPECT_THAT(reading.Texts(L"Menu"), ElementsAre("."));
  EXPECT_THAT(reading.Custom(), ElementsAre(testing::Pair("Key", "Value")));
  ExpectWarningAt(reading, LineOf(text, "rubbish"));
}

TEST(DamagedText, BytesThatMeanNothingInItsCodePageCostNoMoreThanOthers) {
  constexpr std::size_t kLength = 1'000'000;
  for (const auto& [page, byte] : {std::pair("ANSI_932", '\xFF'), std::pair("ANSI_1255", '\xD9')}) {
    drawing::DrawingSpec spec = damage::Sound("AC1015");
    spec.codePage = page;
    const std::string menu = "  9\n$MENU\n  1\n";
    const std::string text =
        Replaced(damage::TextOf(spec), menu + ".", menu + std::string(kLength, byte));
    const Reading reading = damage::ReadAtFairCost(text, ".dxf").reading;
    const std::vector<std::string> told = reading.Texts(L"Menu");
    ASSERT_EQ(told.size(), 1u) << page;
    // Each comes as a character that has two bytes in UTF-8.
    EXPECT_EQ(told.front().size(), 2 * kLength) << page;
  }
}

TEST(DamagedText, ADamagedSettingIsLeftOutNotTold) {
  const Reading reading =
      ReadBytes(Replaced(SoundText(), "  9\n$MENU\n  1\n.\n", "  9\n$MENU\n.\n"));
  EXPECT_THAT(reading.Texts(L"Menu"), ElementsAre());
  EXPECT_THAT(reading.Texts(L"StyleSheet"), ElementsAre(""));
}

TEST(DamagedText, ADamagedCustomValueCostsItsEntryAlone) {
  drawing::DrawingSpec spec = damage::Sound();
  spec.customProperties = {{"A", "1"}, {"B", "2"}, {"C", "3"}};
  const Reading reading = ReadBytes(Replaced(damage::TextOf(spec), "  1\n2\n", "rubbish\n"));
  EXPECT_THAT(reading.Custom(), ElementsAre(testing::Pair("A", "1"), testing::Pair("C", "3")));
}

TEST(DamagedText, ADamagedSummaryRecordLeavesOutWhatStoodBehind) {
  drawing::DrawingSpec spec = damage::Sound("AC1015");
  spec.summary.author = "Somebody";
  const Reading reading = ReadBytes(Replaced(damage::TextOf(spec), "  4\nSomebody\n", "rubbish\n"));
  EXPECT_THAT(reading.Texts(kSummary, L"2"), ElementsAre("Sound"));
  EXPECT_THAT(reading.Texts(kSummary, L"4"), ElementsAre());
  EXPECT_THAT(reading.Texts(kSummary, L"9"), ElementsAre());
}

TEST(DamagedText, ASummaryRecordWithoutItsMarkerTakesNothingFromTheNextObject) {
  drawing::DrawingSpec spec = damage::Sound("AC1015");
  spec.rootEntries.clear();
  std::string text =
      Without(damage::TextOf(spec), std::string("100\n") + drawing::kXrecordMarker + "\n");
  // What follows the title becomes another object's, a custom entry among it.
  text = Replaced(text, "Sound\n", "Sound\n  0\nOTHER\n");
  EXPECT_THAT(ReadBytes(text).Custom(), ElementsAre());
}

TEST(DamagedText, DamageBeforeTheCommentsOfALineTypeCostsTheCommentsAlone) {
  const std::string text = Replaced(SoundText(), "  3\nDashed __ __\n", "Dashed __ __\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"LineType Name"), Contains("Dash"));
  EXPECT_EQ(reading.Texts(L"LineType Comments").size(), reading.Texts(L"LineType Name").size() - 1);
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedText, ACommentBehindASectionsBeginIsPassedOver) {
  const Reading reading =
      ReadBytes(Replaced(SoundText(), "  2\nTABLES\n", "999\nby hand\n  2\nTABLES\n"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

TEST(DamagedText, ADamagedClassDeclarationIsToldOf) {
  drawing::DrawingSpec spec = damage::Sound();
  spec.classes = {{"SOMETYPE", "SomeClass"}};
  spec.rootEntries = {{"Root", drawing::CustomObject("OTHERTYPE")}};
  const std::string text = Replaced(damage::TextOf(spec), "  2\nSomeClass\n", "SomeClass\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"DWG Type"), ElementsAre("Zent"));
  ExpectWarningAt(reading, LineOf(text, "SomeClass\n"));
}

TEST(DamagedText, ATypeNameInAFreeRecordIsNoClass) {
  drawing::DrawingSpec spec = damage::Sound();
  spec.rootEntries = {{"Root", drawing::Xrecord({{100, "TerrDbTreeNode"}})}};
  EXPECT_THAT(ReadBytes(damage::TextOf(spec)).Texts(L"DWG Type"), ElementsAre("Zent"));
}

TEST(DamagedText, AFlawThatIsMetTwiceIsToldOnce) {
  const std::string text = Replaced(SoundText(), "Sound\n", "S\xFFund\n");
  EXPECT_EQ(ReadBytes(text).diagnostics.warningCount, 1u);
}

TEST(DamagedText, LineEndsThatWereConvertedTwiceAreRead) {
  const Reading reading = ReadBytes(dxf::Make(damage::Sound(), {.lineEnd = "\r\r\n"}));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

TEST(DamagedText, ManySectionsAndALostHandleEndSoon) {
  std::string text = Replaced(SoundText(), kGroupEntry, kGroupEntry + "FFF\n");
  std::string sections;
  for (int i = 0; i < 50000; ++i) sections += "  0\nSECTION\n  2\nX\n  0\nENDSEC\n";
  const Reading reading = ReadBytes(Replaced(text, "  0\nEOF\n", sections + "  0\nEOF\n"));
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre());
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DamagedText, DamageInTheRootDictionaryCostsTheEntriesBehindIt) {
  const std::string text = Replaced(SoundText(), "  3\nMY_DATA\n350\n", "rubbish\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Named Object Name"), Contains(drawing::kGroupKey));
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre("Pair"));
  ExpectWarningAt(reading, LineOf(text, "rubbish"));
}

TEST(DamagedText, UnknownGroupCodesAreNoDamage) {
  const Reading reading =
      ReadBytes(Replaced(SoundText(), "  2\nSecond\n", "-17\na\n  88\nb\n65000\nc\n  2\nSecond\n"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_EQ(reading.diagnostics.warningCount, 0u);
}

TEST(DamagedText, RepeatedHandlesLoseNothing) {
  std::string text = SoundText();
  for (std::size_t at = text.find("OBJECTS"); (at = text.find("\n  5\n", at)) != std::string::npos;
       ++at) {
    text.replace(at, text.find('\n', at + 5) - at, "\n  5\nC");
  }
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Named Object Name"), Contains("MY_DATA"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DamagedText, ZeroHandlesLoseOnlyWhatIsNamedByThem) {
  std::string text = SoundText();
  for (std::size_t at = 0; (at = text.find("\n  5\n", at)) != std::string::npos; ++at) {
    text.replace(at, text.find('\n', at + 5) - at, "\n  5\n0");
  }
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Named Object Name"), Contains(drawing::kGroupKey));
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre());
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DamagedText, ADictionaryThatHoldsItselfEnds) {
  // The group dictionary's entry leads to the root dictionary.
  const std::string text = SoundText();
  const std::size_t root = text.find("  0\nDICTIONARY\n  5\n") + 19;
  const std::string handle = text.substr(root, text.find('\n', root) - root);
  const std::size_t entry = text.find(kGroupEntry) + kGroupEntry.size();
  std::string circle = text;
  circle.replace(entry, text.find('\n', entry) - entry, handle);
  EXPECT_THAT(ReadBytes(circle).Texts(L"Group Name"), Contains(drawing::kGroupKey));
}

TEST(DamagedText, ADictionaryEntryThatLeadsToALineIsNoDictionary) {
  drawing::DrawingSpec spec = damage::Sound();
  spec.rootEntries.push_back({"Root", drawing::ObjectAt("FFFFFF")});
  const Reading reading = ReadBytes(damage::TextOf(spec));
  EXPECT_THAT(reading.Texts(L"DWG Type"), ElementsAre("Zent"));
  EXPECT_THAT(reading.Texts(L"Named Object Name"), Contains("Root"));
}

TEST(DamagedText, ANulInATextIsLeftOutAndToldOf) {
  const std::string text =
      Replaced(SoundText(), "  2\nSecond\n", std::string("  2\nSec\0ond\n", 12));
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Layer Name"), Contains("Second"));
  ExpectWarningAt(reading, LineOf(text, std::string("  2\nSec\0ond\n", 12)));
}

TEST(DamagedText, TextOfAnotherEncodingIsReadAndToldOf) {
  const std::string text = Replaced(SoundText(), "  2\nSecond\n", "  2\nCaf\xE9\n");
  const Reading reading = ReadBytes(text);
  EXPECT_THAT(reading.Texts(L"Layer Name"), Contains("Café"));
  ExpectWarningAt(reading, LineOf(text, "  2\nCaf\xE9\n"));
}

TEST(DamagedText, MixedLineEndsAreRead) {
  std::string text = SoundText();
  int line = 0;
  for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; ++line) {
    const std::string end = line % 3 == 0 ? "\r\n" : line % 3 == 1 ? "\r" : "\n";
    text.replace(at, 1, end);
    at += end.size();
  }
  // An empty value between a lone return and a line feed can't be told from CR LF.
  EXPECT_THAT(ReadBytes(text).Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
}

TEST(DamagedText, AnUnknownVersionIsReadAsTheOldestAndToldOf) {
  const Reading reading = ReadBytes(Replaced(SoundText(), "AC1032", "XYZ"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedText, ANewerVersionIsReadAndToldOf) {
  const Reading reading = ReadBytes(Replaced(SoundText(), "AC1032", "AC1050"));
  EXPECT_THAT(reading.Texts(kSummary, L"2"), ElementsAre("Sound"));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedText, AnUnknownCodePageIsWesternAndToldOf) {
  const Reading reading = ReadBytes(Replaced(SoundText("AC1015"), "ANSI_1252", "ANSI_0815"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), Contains("Second"));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedText, OfEndlessWarningsAHundredAreKeptAndAllCounted) {
  std::string text = SoundText();
  std::string layers;
  for (int i = 0; i < 500; ++i) layers += "  0\nLAYER\n  5\n0\n 70\n0\n";
  const Reading reading = ReadBytes(Replaced(text, "  0\nENDTAB\n", layers + "  0\nENDTAB\n"));
  EXPECT_EQ(reading.diagnostics.warnings.size(), 100u);
  EXPECT_GE(reading.diagnostics.warningCount, 500u);
}

TEST(DamagedText, NothingButItsEndIsAnEmptyDrawing) {
  const Reading reading = ReadBytes("  0\nEOF\n");
  EXPECT_THAT(reading.Texts(L"DWG Type"), ElementsAre("Zent"));
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre());
}

TEST(DamagedText, WithoutAHeaderItIsOfTheOldestVersion) {
  const Reading reading = ReadBytes(
      "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nLAYER\n 70\n1\n  0\nLAYER\n  2\nWALLS\n"
      "  0\nENDTAB\n  0\nENDSEC\n  0\nEOF\n");
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("WALLS"));
  EXPECT_THAT(reading.Texts(kSummary, L"2"), ElementsAre());
}

}  // namespace

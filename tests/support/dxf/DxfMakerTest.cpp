#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>

#include "support/drawing/GeoSpec.h"
#include "support/dxf/DxfMaker.h"
#include "support/dxf/TagSink.h"
#include "support/dxf/TextEncoder.h"

namespace dxf {
namespace {

using namespace drawing;

using Pair = std::pair<std::string, std::string>;

// The tags of a text file with LF line ends, codes without their padding.
std::vector<Pair> TagsOf(const std::string& file) {
  std::istringstream lines(file);
  std::vector<Pair> tags;
  std::string code;
  std::string value;
  while (std::getline(lines, code) && std::getline(lines, value)) {
    tags.emplace_back(code.substr(code.find_first_not_of(' ')), value);
  }
  return tags;
}

DrawingSpec Drawn(const std::string& version) {
  DrawingSpec spec;
  spec.version = version;
  return spec;
}

std::string MakeUnix(const DrawingSpec& spec) { return Make(spec, {.lineEnd = "\n"}); }

std::vector<std::string> SectionsOf(const std::string& version) {
  std::vector<std::string> names;
  const std::vector<Pair> tags = TagsOf(MakeUnix(Drawn(version)));
  for (std::size_t i = 0; i + 1 < tags.size(); ++i) {
    if (tags[i] == Pair("0", "SECTION")) names.push_back(tags[i + 1].second);
  }
  return names;
}

TEST(TextEncoder, CaretAndControlCharactersBecomeCaretEscapes) {
  EXPECT_EQ(TextEncoder().Encode("a\nb^c\t"), "a^Jb^ c^I");
}

TEST(TextEncoder, ACodePageHoldsItsOwnLetters) {
  EXPECT_EQ(TextEncoder("ANSI_1251").Encode("Да"), "\xC4\xE0");
  EXPECT_EQ(TextEncoder("ANSI_932").Encode("表"), "\x95\x5C");
}

TEST(TextEncoder, WhatTheCodePageLacksIsEscapedByUnits) {
  EXPECT_EQ(TextEncoder("ANSI_1252").Encode("Ω"), "\\U+03A9");
  EXPECT_EQ(TextEncoder("ANSI_1252").Encode("𝛑"), "\\U+D835\\U+DED1");
}

TEST(TextEncoder, AnUnknownCodePageIsRefused) {
  EXPECT_THROW(TextEncoder("ANSI_99999"), std::invalid_argument);
}

TEST(AsciiSink, CodesAndIntegersArePaddedToTheirWidths) {
  std::string file;
  AsciiSink sink(file, "\r\n");
  sink.Integer(70, 5);
  sink.Integer(90, -5);
  sink.Real(10, 2);
  sink.Bytes(310, "\x01\xAB");
  EXPECT_EQ(file, " 70\r\n     5\r\n 90\r\n       -5\r\n 10\r\n2.0\r\n310\r\n01AB\r\n");
}

TEST(BinarySink, AnOldFileMarksACodeOfTwoBytes) {
  std::string file;
  BinarySink sink(file, BinarySink::CodeSize::OneByte);
  sink.Text(1000, "x");
  sink.Integer(70, 258);
  EXPECT_EQ(file, std::string("\xFF\xE8\x03x\0\x46\x02\x01", 8));
}

TEST(BinarySink, ALaterFileHasCodesOfTwoBytes) {
  std::string file;
  BinarySink sink(file, BinarySink::CodeSize::TwoBytes);
  sink.Integer(290, 1);
  sink.Bytes(310, "ab");
  EXPECT_EQ(file, std::string("\x22\x01\x01\x36\x01\x02"
                              "ab",
                              8));
}

TEST(DxfMaker, TheOldestVersionHasNeitherClassesNorObjects) {
  EXPECT_EQ(SectionsOf("AC1009"),
            (std::vector<std::string>{"HEADER", "TABLES", "BLOCKS", "ENTITIES"}));
}

TEST(DxfMaker, TheLaterVersionsHaveAllSectionsInOrder) {
  EXPECT_EQ(SectionsOf("AC1012"), (std::vector<std::string>{"HEADER", "CLASSES", "TABLES", "BLOCKS",
                                                            "ENTITIES", "OBJECTS"}));
}

TEST(DxfMaker, NoHandleIsGivenTwiceAndTheSeedIsAboveAll) {
  DrawingSpec spec = Drawn("AC1032");
  spec.entities = {Line("0", {}, {1, 1}), Insert("Sign", {{"NO", "1"}})};
  spec.entities[0].handle = "2C";
  spec.blocks = {{"Sign", {{"NO", "", "Number?"}}}};
  const std::vector<Pair> tags = TagsOf(MakeUnix(spec));
  std::set<unsigned long> handles;
  unsigned long seed = 0;
  for (std::size_t i = 1; i < tags.size(); ++i) {
    const auto& [code, value] = tags[i];
    if (tags[i - 1] == Pair("9", "$HANDSEED")) {
      seed = std::stoul(value, nullptr, 16);
    } else if (code == "5" || code == "105") {
      EXPECT_TRUE(handles.insert(std::stoul(value, nullptr, 16)).second) << value;
    }
  }
  ASSERT_FALSE(handles.empty());
  EXPECT_TRUE(handles.contains(0x2C));
  EXPECT_GT(seed, *handles.rbegin());
}

TEST(DxfMaker, ModelSpaceHasTheHandleThatIsKeptForIt) {
  const std::vector<Pair> tags = TagsOf(MakeUnix(Drawn("AC1032")));
  const auto name = std::find(tags.begin(), tags.end(), Pair("2", "*Model_Space"));
  ASSERT_NE(name, tags.end());
  const auto begin =
      std::find(std::make_reverse_iterator(name), tags.rend(), Pair("0", "BLOCK_RECORD"));
  ASSERT_NE(begin, tags.rend());
  EXPECT_EQ(*begin.base(), Pair("5", kModelSpaceHandle));
}

TEST(DxfMaker, AValueOfTheWrongKindIsRefused) {
  DrawingSpec spec = Drawn("AC1032");
  spec.rootEntries = {{"Bad", Xrecord({{70, "text"}})}};
  EXPECT_THROW(Make(spec), std::invalid_argument);
}

// The values of `code` between the tag `from` and the next tag 0.
std::vector<std::string> ValuesAfter(const std::vector<Pair>& tags, const Pair& from,
                                     const std::string& code) {
  std::vector<std::string> values;
  auto tag = std::find(tags.begin(), tags.end(), from);
  while (tag != tags.end() && ++tag != tags.end() && tag->first != "0") {
    if (tag->first == code) values.push_back(tag->second);
  }
  return values;
}

DrawingSpec WithDynamicBlock(const std::string& version) {
  DrawingSpec spec = Drawn(version);
  spec.blocks = {{.name = "Gate", .handle = "A1", .isDynamic = true},
                 {.name = "*U7", .copyOf = "gate"}};
  spec.entities = {Insert("Gate"), Insert("*U7")};
  return spec;
}

std::vector<std::string> InsertedBlocks(const std::vector<Pair>& tags) {
  std::vector<std::string> names;
  bool isInsert = false;
  for (const auto& [code, value] : tags) {
    if (code == "0") isInsert = value == "INSERT";
    if (isInsert && code == "2") names.push_back(value);
  }
  return names;
}

TEST(DxfMaker, ADynamicBlockIsAnonymousBelowAC1024) {
  const std::vector<Pair> tags = TagsOf(MakeUnix(WithDynamicBlock("AC1021")));
  const std::vector<std::string> inserted = InsertedBlocks(tags);
  ASSERT_EQ(inserted.size(), 2u);
  EXPECT_EQ(inserted[0].substr(0, 2), "*U");
  EXPECT_NE(inserted[0], "*U7");
  EXPECT_EQ(inserted[1], "*U7");
  EXPECT_EQ(ValuesAfter(tags, {"5", "A1"}, "2"), std::vector<std::string>{inserted[0]});
  EXPECT_EQ(ValuesAfter(tags, {"5", "A1"}, "1000"), std::vector<std::string>{"Gate"});
}

TEST(DxfMaker, ADynamicBlockHasItsNameFromAC1024OnAndInAC1009) {
  for (const char* version : {"AC1009", "AC1024", "AC1032"}) {
    EXPECT_EQ(InsertedBlocks(TagsOf(MakeUnix(WithDynamicBlock(version)))),
              (std::vector<std::string>{"Gate", "*U7"}));
  }
}

TEST(DxfMaker, ACopyNamesItsDynamicBlock) {
  const std::vector<Pair> tags = TagsOf(MakeUnix(WithDynamicBlock("AC1032")));
  EXPECT_EQ(ValuesAfter(tags, {"2", "*U7"}, "1005"), std::vector<std::string>{"A1"});
  EXPECT_EQ(ValuesAfter(tags, {"2", "Gate"}, "1005"), std::vector<std::string>{});
}

TEST(DxfMaker, BlocksListTheirInsertsInTheOrderThatIsAskedFor) {
  DrawingSpec spec = Drawn("AC1015");
  spec.blocks = {{"Sign"}, {"Frame"}};
  spec.blocks[1].entities = {Insert("SIGN")};
  spec.blocks[1].entities[0].handle = "A1";
  spec.entities = {Insert("Sign"), Insert("Sign")};
  spec.entities[0].handle = "A3";
  spec.entities[1].handle = "A2";
  const auto lists = [&] { return ValuesAfter(TagsOf(MakeUnix(spec)), {"2", "Sign"}, "331"); };
  EXPECT_EQ(lists(), std::vector<std::string>{});
  spec.referenceLists = ReferenceLists::AsDrawn;
  EXPECT_EQ(lists(), (std::vector<std::string>{"A3", "A2", "A1"}));
  spec.referenceLists = ReferenceLists::Reversed;
  EXPECT_EQ(lists(), (std::vector<std::string>{"A1", "A2", "A3"}));
}

TEST(DxfMaker, ALongTextIsCutBetweenCharacters) {
  DrawingSpec spec = Drawn("AC1032");
  const std::string text = std::string(249, 'a') + "\xC3\xA9" + "b";
  spec.entities = {MText("0", {}, 2.5, text)};
  const std::vector<Pair> tags = TagsOf(MakeUnix(spec));
  EXPECT_EQ(ValuesAfter(tags, {"0", "MTEXT"}, "3"), std::vector<std::string>{text.substr(0, 249)});
  EXPECT_EQ(ValuesAfter(tags, {"0", "MTEXT"}, "1"), std::vector<std::string>{text.substr(249)});
}

TEST(DxfMaker, TheLinesOfAnAttributeStandInARecordBelowAC1032) {
  DrawingSpec spec = Drawn("AC1021");
  spec.blocks = {{"Sign"}};
  spec.entities = {
      Insert("Sign", {{.tag = "NO", .value = "many", .multiLine = true, .plainValue = "one"}})};
  const std::vector<Pair> old = TagsOf(MakeUnix(spec));
  EXPECT_EQ(ValuesAfter(old, {"0", "ATTRIB"}, "2"), std::vector<std::string>{"NO_001"});
  EXPECT_EQ(ValuesAfter(old, {"0", "ATTRIB"}, "1"), std::vector<std::string>{"one"});
  EXPECT_EQ(ValuesAfter(old, {"0", "XRECORD"}, "2"), std::vector<std::string>{"NO"});
  EXPECT_EQ(ValuesAfter(old, {"0", "XRECORD"}, "1"),
            (std::vector<std::string>{"Embedded Object", "many"}));
  spec.version = "AC1032";
  const std::vector<Pair> last = TagsOf(MakeUnix(spec));
  EXPECT_EQ(ValuesAfter(last, {"0", "ATTRIB"}, "2"), std::vector<std::string>{"NO"});
  EXPECT_EQ(ValuesAfter(last, {"0", "ATTRIB"}, "1"), (std::vector<std::string>{"", "many"}));
}

TEST(DxfMaker, ALocationOfTheFirstVersionTellsTheNorthInDegrees) {
  DrawingSpec spec = Drawn("AC1021");
  spec.modelExtension = {{kGeoKey, GeoObject({.version = 1, .northX = -1.0, .northY = 0.0})}};
  EXPECT_EQ(ValuesAfter(TagsOf(MakeUnix(spec)), {"0", "GEODATA"}, "52"),
            std::vector<std::string>{"90.0"});
}

TEST(DxfMaker, TheOldestVersionCanDoWithoutBlocksForTheSpaces) {
  DrawingSpec spec = Drawn("AC1009");
  const auto blocks = [&] {
    const std::vector<Pair> tags = TagsOf(MakeUnix(spec));
    return std::count(tags.begin(), tags.end(), Pair("0", "BLOCK"));
  };
  EXPECT_EQ(blocks(), 2);
  spec.hasSpaceBlocks = false;
  EXPECT_EQ(blocks(), 0);
}

// The paths that objects of the class `type` hold.
std::vector<std::string> PathsOf(const DrawingSpec& spec, const std::string& type,
                                 const std::string& code = "1") {
  return ValuesAfter(TagsOf(MakeUnix(spec)), {"0", type}, code);
}

TEST(DxfMaker, ObjectsThatNameFilesStandInTheVersionsThatKnowThem) {
  DrawingSpec spec;
  spec.underlays = {{.name = "site", .path = "site.pdf", .item = "2"}};
  spec.pointClouds = {{.name = "hall", .path = "hall.rcp", .isOfSecondClass = true}};
  spec.dataLinks = {{.name = "rates", .connection = "rates.xlsx!Sheet"}};
  spec.materials = {{.name = "Oak", .diffuse = "oak.jpg", .bump = "rough.png"}};
  using Values = std::vector<std::string>;
  for (const char* version : {"AC1014", "AC1015", "AC1021", "AC1032"}) {
    spec.version = version;
    const bool isNewest = spec.version == "AC1032";
    const bool isNew = isNewest || spec.version == "AC1021";
    const bool isOldest = spec.version == "AC1014";
    EXPECT_EQ(PathsOf(spec, "PDFDEFINITION"), isOldest ? Values{} : Values{"site.pdf"});
    EXPECT_EQ(PathsOf(spec, "PDFDEFINITION", "2"), isOldest ? Values{} : Values{"2"});
    EXPECT_EQ(PathsOf(spec, "ACDBPOINTCLOUDDEFEX"), isNewest ? Values{"hall.rcp"} : Values{});
    EXPECT_EQ(PathsOf(spec, "DATALINK", "302"), isNew ? Values{"rates.xlsx!Sheet"} : Values{});
    EXPECT_EQ(PathsOf(spec, "MATERIAL", "3"), isNew ? Values{"oak.jpg"} : Values{});
    EXPECT_EQ(PathsOf(spec, "MATERIAL", "8"), isNew ? Values{"rough.png"} : Values{});
  }
}

TEST(DxfMaker, BlocksTellHowTheirDrawingsAreReferredTo) {
  DrawingSpec spec;
  spec.blocks = {XrefBlock("A", "a.dwg"), XrefBlock("B", "b.dwg", Xref::Overlaid),
                 XrefBlock("A|C", "c.dwg")};
  spec.blocks[2].flags = kXrefDependent;
  std::vector<int> flags;
  std::vector<std::string> paths;
  bool isBlock = false;
  for (const auto& [code, value] : TagsOf(MakeUnix(spec))) {
    if (code == "0") isBlock = value == "BLOCK";
    if (isBlock && code == "70") flags.push_back(std::stoi(value));
    if (isBlock && code == "1" && !value.empty()) paths.push_back(value);
  }
  ASSERT_EQ(flags.size(), 5u);
  EXPECT_EQ(flags[2] & 28, 4);
  EXPECT_EQ(flags[3] & 28, 12);
  EXPECT_EQ(flags[4] & 28, 20);
  EXPECT_EQ(paths, (std::vector<std::string>{"a.dwg", "b.dwg", "c.dwg"}));
}

TEST(DxfMaker, LayoutsAndPageSetupsNamePrintersAndPlotStyles) {
  DrawingSpec spec;
  spec.layouts = {{"Sheet", {}, "sheet.ctb"}};
  spec.layouts[0].printer = "plotter.pc3";
  spec.plotSettings = {{"A3", "laser.pc3", "grey.stb"}};
  const std::vector<Pair> tags = TagsOf(MakeUnix(spec));
  EXPECT_EQ(ValuesAfter(tags, {"0", "PLOTSETTINGS"}, "2"), std::vector<std::string>{"laser.pc3"});
  EXPECT_EQ(ValuesAfter(tags, {"0", "PLOTSETTINGS"}, "7"), std::vector<std::string>{"grey.stb"});
  EXPECT_NE(std::find(tags.begin(), tags.end(), Pair("2", "plotter.pc3")), tags.end());
  EXPECT_NE(std::find(tags.begin(), tags.end(), Pair("7", "sheet.ctb")), tags.end());
}

TEST(DxfMaker, AShapeFileHasNoName) {
  DrawingSpec spec;
  spec.textStyles = {ShapeFile("signs.shx", "A1")};
  const std::vector<Pair> tags = TagsOf(MakeUnix(spec));
  EXPECT_EQ(ValuesAfter(tags, {"5", "A1"}, "2"), std::vector<std::string>{""});
  EXPECT_EQ(ValuesAfter(tags, {"5", "A1"}, "3"), std::vector<std::string>{"signs.shx"});
  EXPECT_EQ(ValuesAfter(tags, {"5", "A1"}, "70"), std::vector<std::string>{"     1"});
}

}  // namespace
}  // namespace dxf

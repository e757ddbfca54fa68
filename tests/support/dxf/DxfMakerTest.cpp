#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>
#include <stdexcept>

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

}  // namespace
}  // namespace dxf

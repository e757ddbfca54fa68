// The values of blocks, of one drawing written in every version and form: which reference gives
// them, how they are named, and what the listing of blocks tells.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "interface/BlocksSpec.h"
#include "interface/Writings.h"
#include "support/Paths.h"
#include "support/PublicRead.h"
#include "support/Scratch.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Records = std::vector<std::pair<std::string, std::string>>;

class BlocksOfEveryVersion : public testing::TestWithParam<zdx_test::WrittenAs> {
 protected:
  std::string Version() const { return std::get<0>(GetParam()); }
  const zdx_test::Writing& Form() const { return std::get<1>(GetParam()); }
  bool IsOldest() const { return Version() == "AC1009"; }

  // The values that a block gives, each of which must stand twice.
  Records Values(const std::wstring& block, bool usePrompt = false) {
    spec.version = Version();
    const zdx_test::ScratchFile file(Form().make(spec), Form().Suffix());
    const zdx_test::Reading reading =
        zdx_test::ReadFile(zdx_test::NameOf(file.path()), {zdx_test::FilterFor(block, usePrompt)},
                           ZDXEngine::FilePropertyMgr::BlockAttributes);
    EXPECT_EQ(reading.diagnostics.warningCount, 0u);
    const Records values = reading.Records(zdx_test::kBlockSet);
    EXPECT_EQ(reading.Records(zdx_test::kStorage), values);
    EXPECT_EQ(reading.properties.size(), 2 * values.size());
    for (std::size_t i = 0; i < reading.properties.size(); ++i) {
      const bool isFirst = i % 2 == 0;
      EXPECT_EQ(reading.properties[i].formatId, isFirst ? zdx_test::kBlockSet : zdx_test::kStorage);
    }
    return values;
  }

  std::vector<ZDXEngine::BlockInfo> Listed() {
    spec.version = Version();
    const zdx_test::ScratchFile file(Form().make(spec), Form().Suffix());
    return zdx_test::ListBlocks(zdx_test::NameOf(file.path()));
  }

  // Names as the version stores them.
  std::string Name(std::string name) const {
    if (!Form().IsDwg() || Version() != "AC1014") return name;
    for (char& c : name) {
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return name;
  }

  // The text of many lines as one line; the oldest version knows it as a plain one.
  std::string Note() const { return IsOldest() ? zdx_test::kNote : "first second third;fourth"; }

  drawing::DrawingSpec spec = zdx_test::SpecWithBlocks();
};

TEST_P(BlocksOfEveryVersion, GiveConstantsAndThenOneReferencesValuesByTag) {
  EXPECT_THAT(Values(L"sIGN"), ElementsAre(Pair("KIND", "metal"), Pair("NO", "1"),
                                           Pair("NAME", "Überholverbot"), Pair("NOTE", Note())));
}

TEST_P(BlocksOfEveryVersion, GiveThemByPromptOrByTagWithoutOne) {
  EXPECT_THAT(Values(L"Sign", true),
              ElementsAre(Pair("Kind?", "metal"), Pair("Number?", "1"),
                          Pair("NAME", "Überholverbot"), Pair("Note?", Note())));
}

TEST_P(BlocksOfEveryVersion, GiveThoseOfALayoutRatherThanOfABlock) {
  spec.entities = {drawing::Insert("Frame")};
  spec.blocks[1].entities[1].handle = "E01";
  EXPECT_THAT(Values(L"Sign"), ElementsAre(Pair("KIND", "metal"), Pair("NO", "2")));
}

TEST_P(BlocksOfEveryVersion, GiveThoseOfTheLowestHandleWhateverTheBlockLists) {
  spec.referenceLists = drawing::ReferenceLists::Reversed;
  const Records values = Values(L"Sign");
  ASSERT_GE(values.size(), 2u);
  EXPECT_THAT(values[1], Pair("NO", "1"));
}

TEST_P(BlocksOfEveryVersion, GiveThoseOfABlockWhereNoLayoutHasAny) {
  spec.entities.clear();
  spec.layouts = {"Layout1"};
  EXPECT_THAT(Values(L"Sign"), ElementsAre(Pair("KIND", "metal"), Pair("NO", "4")));
}

TEST_P(BlocksOfEveryVersion, GiveNothingButConstantsWhereTheFirstReferenceHasNoAttributes) {
  spec.entities[1].attributes.clear();
  spec.entities[1].body = drawing::Insert("Sign").body;
  EXPECT_THAT(Values(L"Sign"), ElementsAre(Pair("KIND", "metal")));
}

TEST_P(BlocksOfEveryVersion, GiveConstantsWithoutAnyReference) {
  spec.entities.clear();
  spec.layouts = {"Layout1"};
  spec.blocks[1].entities.clear();
  EXPECT_THAT(Values(L"Sign"), ElementsAre(Pair("KIND", "metal")));
}

TEST_P(BlocksOfEveryVersion, GiveThoseOfADynamicBlocksFirstCopy) {
  if (IsOldest()) {
    EXPECT_THAT(Values(L"Gate"), IsEmpty());
    return;
  }
  EXPECT_THAT(Values(L"Gate"), ElementsAre(Pair("WIDTH", "91")));
  EXPECT_THAT(Values(L"Gate", true), ElementsAre(Pair("Width?", "91")));
}

TEST_P(BlocksOfEveryVersion, GiveNothingOfADynamicBlockWhoseFirstCopyIsntShown) {
  spec.entities.erase(spec.entities.begin() + 3);
  EXPECT_THAT(Values(L"Gate"), IsEmpty());
}

TEST_P(BlocksOfEveryVersion, GiveADynamicBlocksOwnReferenceBeforeItsCopies) {
  spec.entities.push_back(drawing::Insert("Gate", {{.tag = "WIDTH", .value = "81"}}));
  EXPECT_THAT(Values(L"Gate"), ElementsAre(Pair("WIDTH", "81")));
}

TEST_P(BlocksOfEveryVersion, GiveAnArraysValues) {
  spec.entities = {
      drawing::Insert("Sign", {{.tag = "NO", .value = "5"}}, {.columns = 3, .rows = 2})};
  EXPECT_THAT(Values(L"Sign"), ElementsAre(Pair("KIND", "metal"), Pair("NO", "5")));
}

TEST_P(BlocksOfEveryVersion, GiveNothingOfLayoutsAndUnknownNames) {
  EXPECT_THAT(Values(L"*Model_Space"), IsEmpty());
  EXPECT_THAT(Values(L"$MODEL_SPACE"), IsEmpty());
  EXPECT_THAT(Values(L"No such block"), IsEmpty());
  EXPECT_THAT(Values(L"Empty"), IsEmpty());
}

TEST_P(BlocksOfEveryVersion, TellTwoDefinitionsOfOneTagApartByTheirPlaces) {
  spec.blocks.push_back({"Twice"});
  spec.blocks.back().definitions = {{.tag = "A", .prompt = "One?"}, {.tag = "A", .prompt = "Two?"}};
  spec.entities.push_back(
      drawing::Insert("Twice", {{.tag = "A", .value = "1"}, {.tag = "A", .value = "2"}}));
  EXPECT_THAT(Values(L"Twice", true), ElementsAre(Pair("One?", "1"), Pair("Two?", "2")));
}

TEST_P(BlocksOfEveryVersion, TellTextsOfEveryAlphabet) {
  spec.codePage = "ANSI_1251";
  spec.blocks.push_back({"Знак"});
  spec.blocks.back().definitions = {{.tag = "НОМЕР", .prompt = "Номер?"},
                                    {.tag = "ΩΜΕΓΑ", .prompt = "漢字 ^ 𝛑?"}};
  spec.entities.push_back(drawing::Insert(
      "Знак", {{.tag = "НОМЕР", .value = "седьмой^"}, {.tag = "ΩΜΕΓΑ", .value = "a\tb, 漢字 𝛑"}}));
  const std::wstring name = ZDXEngine::WideFromUtf8("ЗНАК");
  EXPECT_THAT(Values(name), ElementsAre(Pair("НОМЕР", "седьмой^"), Pair("ΩΜΕΓΑ", "a\tb, 漢字 𝛑")));
  EXPECT_THAT(Values(name, true),
              ElementsAre(Pair("Номер?", "седьмой^"), Pair("漢字 ^ 𝛑?", "a\tb, 漢字 𝛑")));
}

TEST_P(BlocksOfEveryVersion, AreListedWithWhatTheyCarry) {
  const std::vector<ZDXEngine::BlockInfo> blocks = Listed();
  // The oldest version doesn't know that the copies are some.
  ASSERT_EQ(blocks.size(), IsOldest() ? 4u : 2u);
  const ZDXEngine::BlockInfo& sign = blocks[0];
  EXPECT_EQ(ZDXEngine::Utf8FromWide(sign.name), Name("Sign"));
  EXPECT_EQ(sign.references, Version() < "AC1015" ? 4u : 5u);
  EXPECT_EQ(sign.variations, 0u);
  ASSERT_EQ(sign.definitions.size(), 4u);
  EXPECT_EQ(sign.definitions[1].tag, L"KIND");
  EXPECT_EQ(sign.definitions[1].text, L"metal");
  EXPECT_TRUE(sign.definitions[1].isConstant);
  EXPECT_EQ(sign.definitions[3].tag, L"NOTE");
  EXPECT_EQ(sign.definitions[3].prompt, L"Note?");
  const ZDXEngine::BlockInfo& gate = blocks[1];
  EXPECT_EQ(ZDXEngine::Utf8FromWide(gate.name), Name("Gate"));
  EXPECT_EQ(gate.references, 0u);
  EXPECT_EQ(gate.variations, IsOldest() ? 0u : 2u);
}

INSTANTIATE_TEST_SUITE_P(Dxf, BlocksOfEveryVersion,
                         testing::Combine(testing::ValuesIn(zdx_test::kDxfVersions),
                                          testing::ValuesIn(zdx_test::kDxfWritings)),
                         zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, BlocksOfEveryVersion,
                         testing::Combine(testing::ValuesIn(zdx_test::kDwgVersions),
                                          testing::ValuesIn(zdx_test::kDwgWritings)),
                         zdx_test::WritingTestName);

// The oldest drawings may do without blocks for the spaces, which are layouts all the same.
class BlocksWithoutSpaces : public BlocksOfEveryVersion {};

TEST_P(BlocksWithoutSpaces, GiveThoseOfModelSpaceRatherThanOfABlock) {
  spec.hasSpaceBlocks = false;
  spec.blocks[1].entities[1].handle = "E01";
  EXPECT_THAT(Values(L"Sign"), ElementsAre(Pair("KIND", "metal"), Pair("NO", "1"),
                                           Pair("NAME", "Überholverbot"), Pair("NOTE", Note())));
  EXPECT_EQ(Listed().size(), 4u);
}

INSTANTIATE_TEST_SUITE_P(Dxf, BlocksWithoutSpaces,
                         testing::Combine(testing::Values("AC1009"),
                                          testing::ValuesIn(zdx_test::kDxfWritings)),
                         zdx_test::WritingTestName);

}  // namespace

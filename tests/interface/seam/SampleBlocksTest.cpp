// Real drawings, where a collection of them lies beside the project: the drawing-database library
// tells of their blocks what the truth files say.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <nlohmann/json.hpp>

#include "interface/seam/BlockWalk.h"
#include "support/Paths.h"
#include "support/Samples.h"

namespace {

using nlohmann::json;
using zdx_test::WalkedBlock;
using zdx_test::WalkedReference;

// The name of a block without the number by which files tell anonymous ones apart.
std::string KindOf(const std::string& name) {
  const bool isAnonymous = name.size() > 2 && name[0] == '*' && name[2] >= '0' && name[2] <= '9';
  return isAnonymous ? name.substr(0, 2) : name;
}

class SampleBlocks : public testing::TestWithParam<std::string> {
 protected:
  SampleBlocks()
      : blocks(zdx_test::WalkBlocks(zdx_test::NameOf(zdx_test::SampleFolder() / GetParam()))) {
    std::ifstream(zdx_test::TruthOf(GetParam())) >> truth;
  }

  const WalkedBlock* Block(const std::string& name) const {
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [&](const WalkedBlock& block) { return block.name == name; });
    return found == blocks.end() ? nullptr : &*found;
  }

  // The truth tells the blocks of old DXF files by their records' names, and leaves out the
  // anonymous ones that a drawing's two files number differently.
  bool IsTold(const std::string& name) const {
    const bool isHidden = truth["magic"] < "AC1024" && name.starts_with("*U");
    return !isHidden && !(truth.contains("anonymousBlocks") && KindOf(name) != name);
  }

  json truth;
  std::vector<WalkedBlock> blocks;
};

TEST_P(SampleBlocks, AreListedWithTheirReferences) {
  for (const json& expected : truth["blocks"]) {
    const std::string name = expected["name"];
    if (!IsTold(name)) continue;
    const WalkedBlock* const block = Block(name);
    ASSERT_NE(block, nullptr) << name;
    EXPECT_EQ(block->references.size(), expected["references"]) << name;
    EXPECT_EQ(block->isLayout, expected.contains("layout") || name.starts_with("*Model_Space") ||
                                   name.starts_with("*Paper_Space") || name.starts_with("$") ||
                                   name.starts_with("*MODEL_SPACE") ||
                                   name.starts_with("*PAPER_SPACE"))
        << name;
  }
}

TEST_P(SampleBlocks, HaveTheirDefinitionsInOrder) {
  std::size_t told = 0;
  for (const json& expected : truth["blocks"]) {
    const std::string name = expected["name"];
    if (!IsTold(name)) continue;
    const WalkedBlock* const block = Block(name);
    ASSERT_NE(block, nullptr) << name;
    const json& definitions = expected["attributeDefinitions"];
    ASSERT_EQ(block->definitions.size(), definitions.size()) << name;
    for (std::size_t i = 0; i < definitions.size(); ++i) {
      const json& definition = definitions[i];
      const zdx_test::WalkedDefinition& walked = block->definitions[i];
      EXPECT_EQ(walked.tag, definition["tag"]);
      // What the truth isn't sure of it leaves out.
      EXPECT_EQ(walked.prompt, definition.value("prompt", walked.prompt));
      EXPECT_EQ(walked.text, definition["default"]);
      EXPECT_EQ(walked.isConstant, definition["constant"]);
      ++told;
    }
  }
  std::size_t walked = 0;
  for (const WalkedBlock& block : blocks) walked += block.definitions.size();
  EXPECT_EQ(walked, told);
}

// Below AC1032 the truth tells an attribute of many lines as the plain one that stands beside its
// record: with a suffix, and of one line.
void ExpectAttribute(const zdx_test::WalkedAttribute& walked, const json& expected) {
  constexpr std::string_view kSuffix = "_001";
  const std::string stored = expected["tag"];
  if (walked.isMultiLine && expected["multiline"] == false) {
    EXPECT_EQ(walked.tag + std::string(kSuffix), stored);
  } else {
    EXPECT_EQ(walked.tag, stored);
    EXPECT_EQ(walked.isMultiLine, expected["multiline"]);
    EXPECT_FALSE(stored.ends_with(kSuffix)) << stored;
  }
  EXPECT_EQ(walked.text, expected["value"]);
}

// The truth tells them in the order of the file, the library in that of the block's list.
TEST_P(SampleBlocks, HaveReferencesWithTheAttributesOfTheTruth) {
  std::map<std::string, std::vector<const WalkedReference*>> left;
  for (const WalkedBlock& block : blocks) {
    for (const WalkedReference& reference : block.references) {
      if (!reference.attributes.empty()) left[block.name].push_back(&reference);
    }
  }
  for (const json& insert : truth["inserts"]) {
    const std::string name = insert["block"];
    const json& attributes = insert["attributes"];
    std::vector<const WalkedReference*>& among = left[name];
    const auto found =
        std::find_if(among.begin(), among.end(), [&](const WalkedReference* reference) {
          return reference->attributes.size() == attributes.size() &&
                 std::equal(attributes.begin(), attributes.end(), reference->attributes.begin(),
                            [](const json& expected, const zdx_test::WalkedAttribute& walked) {
                              return expected["value"] == walked.text;
                            });
        });
    ASSERT_NE(found, among.end()) << insert;
    EXPECT_EQ((*found)->owner, insert["owner"]);
    for (std::size_t i = 0; i < attributes.size(); ++i) {
      ExpectAttribute((*found)->attributes[i], attributes[i]);
    }
    among.erase(found);
  }
  for (const auto& [name, references] : left) EXPECT_TRUE(references.empty()) << name;
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleBlocks);
INSTANTIATE_TEST_SUITE_P(Dxf, SampleBlocks, testing::ValuesIn(zdx_test::SampleNames(".dxf")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });
INSTANTIATE_TEST_SUITE_P(Dwg, SampleBlocks, testing::ValuesIn(zdx_test::SampleNames(".dwg")),
                         [](const auto& info) { return zdx_test::SampleTestName(info.param); });

TEST(SampleBlocksFolder, IsReadWhereItLies) {
  if (zdx_test::SampleNames(".dwg").empty()) {
    GTEST_SKIP() << "no collection of real drawings at " << zdx_test::SampleFolder()
                 << ": the tests of their blocks are left out";
  }
  SUCCEED();
}

// A dynamic block and its variations, of which only the last four are shown.
TEST(SampleDynamicBlock, KnowsItsCopies) {
  for (const char* const name : {"visibility_2018.dwg", "visibility_2018.dxf"}) {
    const auto path = zdx_test::SampleFolder() / name;
    if (!std::filesystem::exists(path)) GTEST_SKIP() << "no drawing at " << path;
    const std::vector<WalkedBlock> blocks = zdx_test::WalkBlocks(zdx_test::NameOf(path));
    for (const WalkedBlock& block : blocks) {
      EXPECT_EQ(block.isDynamic, block.name == "block_visibility_parameter") << block.name;
      EXPECT_EQ(block.copies.size(), block.isDynamic ? 12u : 0u) << block.name;
      for (const std::string& copy : block.copies) EXPECT_TRUE(copy.starts_with("*U")) << copy;
    }
  }
}

TEST(SampleDynamicBlock, IsToldByItsTrueNameBelowAC1024) {
  const auto path = zdx_test::SampleFolder() / "sample_2007_binary.dxf";
  if (!std::filesystem::exists(path)) GTEST_SKIP() << "no drawing at " << path;
  std::vector<std::string> dynamic;
  for (const WalkedBlock& block : zdx_test::WalkBlocks(zdx_test::NameOf(path))) {
    if (block.isDynamic) dynamic.push_back(block.name);
  }
  EXPECT_THAT(dynamic, testing::ElementsAre("my-dynamic-block"));
}

}  // namespace

// One drawing with blocks, written in every version and form: the drawing-database library tells
// the same of its blocks in each as far as the version can hold it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "interface/BlocksSpec.h"
#include "interface/Writings.h"
#include "interface/seam/BlockWalk.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using zdx_test::WalkedBlock;
using Lines = std::vector<std::string>;

// Versions differ in how they spell names, and in those of model and paper space.
std::string Plain(std::string name) {
  std::replace(name.begin(), name.end(), '$', '*');
  for (char& c : name) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
  return name;
}

class EveryVersionBlocks : public testing::TestWithParam<zdx_test::WrittenAs> {
 protected:
  std::string Version() const { return std::get<0>(GetParam()); }
  const zdx_test::Writing& Form() const { return std::get<1>(GetParam()); }
  bool IsOldest() const { return Version() == "AC1009"; }

  void Walk() {
    spec.version = Version();
    const zdx_test::ScratchFile file(Form().make(spec), Form().Suffix());
    blocks = zdx_test::WalkBlocks(zdx_test::NameOf(file.path()));
    for (WalkedBlock& block : blocks) {
      block.name = Plain(block.name);
      for (zdx_test::WalkedReference& reference : block.references) {
        reference.owner = Plain(reference.owner);
      }
    }
  }

  WalkedBlock Block(const std::string& name) const {
    for (const WalkedBlock& block : blocks) {
      if (block.name == name) return block;
    }
    ADD_FAILURE() << "no block " << name;
    return {};
  }

  // The values of the first attributes of a block's references.
  Lines FirstValues(const std::string& block) const {
    Lines values;
    for (const zdx_test::WalkedReference& reference : Block(block).references) {
      values.push_back(reference.attributes.empty() ? "" : reference.attributes[0].text);
    }
    return values;
  }

  drawing::DrawingSpec spec = zdx_test::SpecWithBlocks();
  std::vector<WalkedBlock> blocks;
};

TEST_P(EveryVersionBlocks, BeginWithTheLayoutsAndKeepTheirOrder) {
  Walk();
  Lines names;
  Lines layouts;
  for (const WalkedBlock& block : blocks) {
    names.push_back(block.name);
    if (block.isLayout) layouts.push_back(block.name);
  }
  Lines expected = {"*MODEL_SPACE", "*PAPER_SPACE"};
  if (Version() >= "AC1015") expected.push_back("*PAPER_SPACE0");
  EXPECT_EQ(layouts, expected);
  for (const char* const name : {"SIGN", "FRAME", "GATE", "*U7", "*U8", "EMPTY"}) {
    expected.push_back(name);
  }
  EXPECT_EQ(names, expected);
}

TEST_P(EveryVersionBlocks, HaveTheirDefinitions) {
  Walk();
  EXPECT_THAT(LinesOf(Block("SIGN").definitions),
              ElementsAre("NO, Number? = 0", "KIND, Kind? = metal (constant)", "NAME,  = none",
                          std::string("NOTE, Note? = ") + zdx_test::kNote));
  EXPECT_THAT(LinesOf(Block("*MODEL_SPACE").definitions),
              ElementsAre("LOOSE, Loose? = in no block"));
  EXPECT_THAT(Block("FRAME").definitions, IsEmpty());
}

TEST_P(EveryVersionBlocks, HaveTheirReferencesByHandle) {
  Walk();
  const std::string note = std::string("NOTE = ") + zdx_test::kNote;
  Lines expected = {
      "*MODEL_SPACE: NO = 1; NAME = Überholverbot; " + note + (IsOldest() ? ";" : " (many lines);"),
      "*MODEL_SPACE:", "*PAPER_SPACE: NO = 2;"};
  if (Version() >= "AC1015") expected.push_back("*PAPER_SPACE0: NO = 3;");
  expected.push_back("FRAME: NO = 4;");
  EXPECT_EQ(LinesOf(Block("SIGN").references), expected);
  EXPECT_THAT(LinesOf(Block("FRAME").references), ElementsAre("*MODEL_SPACE:"));
  EXPECT_THAT(Block("GATE").references, IsEmpty());
  EXPECT_THAT(LinesOf(Block("*U8").references), ElementsAre("*MODEL_SPACE: WIDTH = 101;"));
  EXPECT_THAT(Block("EMPTY").references, IsEmpty());
}

TEST_P(EveryVersionBlocks, HaveTheirEntitiesWithoutThoseOfReferences) {
  Walk();
  const Lines model = Block("*MODEL_SPACE").entities;
  EXPECT_EQ(model.size(), 7u);
  EXPECT_EQ(std::count(model.begin(), model.end(), "ZnDbBlockReference"), 5);
  EXPECT_EQ(std::count(model.begin(), model.end(), "ZnDbAttributeDefinition"), 1);
  EXPECT_EQ(Block("SIGN").entities.size(), 5u);
  EXPECT_EQ(Block("FRAME").entities.size(), 2u);
  EXPECT_EQ(Block("*PAPER_SPACE").entities, Lines{"ZnDbBlockReference"});
}

TEST_P(EveryVersionBlocks, KnowTheirCopiesWhereTheVersionKnowsDynamicBlocks) {
  for (const drawing::DynamicMark mark :
       {drawing::DynamicMark::Both, drawing::DynamicMark::TrueName, drawing::DynamicMark::Entry}) {
    // Without the name the record of an old drawing is nothing but an anonymous one.
    if (mark == drawing::DynamicMark::Entry && Version() < "AC1024" && !Form().IsDwg()) continue;
    spec.blocks[2].dynamicMark = mark;
    Walk();
    for (const WalkedBlock& block : blocks) {
      const bool isDynamic = block.name == "GATE" && !IsOldest();
      EXPECT_EQ(block.isDynamic, isDynamic) << block.name;
      EXPECT_EQ(block.copies, isDynamic ? (Lines{"*U7", "*U8"}) : Lines()) << block.name;
    }
  }
}

TEST_P(EveryVersionBlocks, TellTextsOfBothKinds) {
  const std::string manyLines = std::string(600, 'x') + "many\\Plines";
  spec.entities = {drawing::Text("0", {}, 1.0, "one line"),
                   drawing::MText("0", {}, 1.0, manyLines)};
  Walk();
  Lines classes = {"ZnDbAttributeDefinition", "ZnDbText"};
  Lines texts = {"one line"};
  if (!IsOldest()) {
    classes.push_back("ZnDbMText");
    texts.push_back(manyLines);
  }
  EXPECT_EQ(Block("*MODEL_SPACE").entities, classes);
  EXPECT_EQ(Block("*MODEL_SPACE").texts, texts);
}

// Drawn in an order that isn't that of their handles.
class ReferencesOfEveryVersion : public EveryVersionBlocks {
 protected:
  ReferencesOfEveryVersion() {
    const auto insert = [](const char* handle) {
      drawing::EntitySpec entity = drawing::Insert("Sign", {{.tag = "NO", .value = handle}});
      entity.handle = handle;
      return entity;
    };
    spec.entities = {insert("A3"), insert("A1"), insert("A2")};
    spec.layouts = {"Layout1"};
    spec.blocks = {{"Sign"}};
  }
};

TEST_P(ReferencesOfEveryVersion, ComeByTheirHandlesWhateverTheBlockLists) {
  using drawing::ReferenceLists;
  for (const ReferenceLists lists :
       {ReferenceLists::None, ReferenceLists::AsDrawn, ReferenceLists::Reversed}) {
    spec.referenceLists = lists;
    Walk();
    EXPECT_EQ(FirstValues("SIGN"), (Lines{"A1", "A2", "A3"}));
  }
}

TEST_P(ReferencesOfEveryVersion, OfOneBlockAreNotThoseOfAnother) {
  spec.blocks.push_back({"Signal"});
  spec.blocks.push_back({"Other"});
  spec.entities.push_back(drawing::Insert("signal"));
  Walk();
  EXPECT_EQ(Block("SIGN").references.size(), 3u);
  EXPECT_EQ(Block("SIGNAL").references.size(), 1u);
  EXPECT_EQ(Block("OTHER").references.size(), 0u);
}

const auto kEachDxf = testing::Combine(testing::ValuesIn(zdx_test::kDxfVersions),
                                       testing::ValuesIn(zdx_test::kDxfWritings));
const auto kEachDwg = testing::Combine(testing::ValuesIn(zdx_test::kDwgVersions),
                                       testing::ValuesIn(zdx_test::kDwgWritings));
INSTANTIATE_TEST_SUITE_P(Dxf, EveryVersionBlocks, kEachDxf, zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, EveryVersionBlocks, kEachDwg, zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dxf, ReferencesOfEveryVersion, kEachDxf, zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, ReferencesOfEveryVersion, kEachDwg, zdx_test::WritingTestName);

// The oldest drawings may have no handles, and no blocks for the spaces.
class OldestBlocks : public ReferencesOfEveryVersion {};

TEST_P(OldestBlocks, WithoutHandlesHaveTheirReferencesAsTheyStandInTheFile) {
  spec.hasHandles = false;
  Walk();
  EXPECT_EQ(FirstValues("SIGN"), (Lines{"A3", "A1", "A2"}));
}

TEST_P(OldestBlocks, WithoutBlocksForTheSpacesHaveTheirReferencesInThemAllTheSame) {
  spec.hasSpaceBlocks = false;
  spec.layouts = {{"Layout1", {drawing::Insert("Sign")}}};
  Walk();
  ASSERT_EQ(blocks.size(), 3u);
  EXPECT_TRUE(blocks[0].isLayout && blocks[1].isLayout);
  EXPECT_EQ(blocks[0].entities.size(), 4u);
  EXPECT_EQ(blocks[1].entities.size(), 1u);
  Lines owners;
  for (const auto& reference : Block("SIGN").references) owners.push_back(reference.owner);
  EXPECT_EQ(std::count(owners.begin(), owners.end(), "*MODEL_SPACE"), 3);
  EXPECT_EQ(std::count(owners.begin(), owners.end(), "*PAPER_SPACE"), 1);
}

INSTANTIATE_TEST_SUITE_P(Dxf, OldestBlocks,
                         testing::Combine(testing::Values("AC1009"),
                                          testing::ValuesIn(zdx_test::kDxfWritings)),
                         zdx_test::WritingTestName);

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "architecture/LayerRules.h"
#include "architecture/ProjectSources.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace architecture {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace fs = std::filesystem;

const LayerRules& SampleRules() {
  static const LayerRules rules = LayerRules::Parse(
      "# a comment\n"
      "base:\n"
      "errors: base\n"
      "drawing: base errors\n"
      "tools/zdx: base\n");
  return rules;
}

TEST(LayerRules, AnIncludeOfALowerLayerIsAllowed) {
  EXPECT_THAT(
      Violations(SampleRules(), "src/drawing/A.cpp", "#include \"errors/Throw.h\"\nint a;\n"),
      IsEmpty());
}

TEST(LayerRules, AnIncludeOfAHigherLayerIsNamed) {
  EXPECT_THAT(Violations(SampleRules(), "src/base/A.cpp",
                         "#include <string>\n#include \"drawing/DrawingFile.h\"\n"),
              ElementsAre("src/base/A.cpp: base may not include drawing/DrawingFile.h"));
}

TEST(LayerRules, EachBadIncludeOfAFileIsNamed) {
  EXPECT_THAT(Violations(SampleRules(), "src/base/A.cpp",
                         "#include \"errors/Throw.h\"\n  #  include\t\"drawing/DrawingFile.h\"\n"),
              SizeIs(2));
}

TEST(LayerRules, AFileMayIncludeItsOwnLayer) {
  EXPECT_THAT(Violations(SampleRules(), "src/base/deep/A.cpp",
                         "#include \"base/B.h\"\n#include \"Beside.h\"\n"),
              IsEmpty());
}

TEST(LayerRules, ALayerIsNotReachedByClimbing) {
  EXPECT_THAT(
      Violations(SampleRules(), "src/base/A.cpp", "#include \"../drawing/DrawingFile.h\"\n"),
      SizeIs(1));
}

TEST(LayerRules, AFolderThatTheTableDoesNotNameIsOutOfBounds) {
  EXPECT_THAT(Violations(SampleRules(), "src/drawing/A.cpp", "#include \"gtest/gtest.h\"\n"),
              SizeIs(1));
}

TEST(LayerRules, AFileOfAFolderWithoutALineIsNamedEvenWithoutIncludes) {
  EXPECT_THAT(Violations(SampleRules(), "src/stray/A.cpp", "int a;\n"),
              ElementsAre("src/stray/A.cpp: the table has no line for stray"));
}

TEST(LayerRules, AToolIsALayerOfTwoFolders) {
  EXPECT_THAT(Violations(SampleRules(), "tools/zdx/main.cpp",
                         "#include \"base/B.h\"\n#include \"errors/Throw.h\"\n"),
              ElementsAre("tools/zdx/main.cpp: tools/zdx may not include errors/Throw.h"));
}

TEST(LayerRules, ATableWithALayerNamedTwiceIsRefused) {
  EXPECT_THROW(LayerRules::Parse("base:\nbase: errors\n"), std::invalid_argument);
}

TEST(LayerRules, ATableLineWithoutAColonIsRefused) {
  EXPECT_THROW(LayerRules::Parse("base errors\n"), std::invalid_argument);
}

LayerRules ProjectRules() {
  return LayerRules::Parse(zdx_test::ContentsOf(kProject / "cmake/layers.txt"));
}

class ProjectFolder : public ::testing::TestWithParam<const char*> {};

TEST_P(ProjectFolder, IncludesOnlyWhatItsLayerMay) {
  const LayerRules rules = ProjectRules();
  const std::vector<std::string> paths = SourcesBelow(GetParam());
  ASSERT_FALSE(paths.empty());
  for (const std::string& path : paths) {
    EXPECT_THAT(Violations(rules, path, zdx_test::ContentsOf(kProject / path)), IsEmpty());
  }
}

INSTANTIATE_TEST_SUITE_P(Layers, ProjectFolder, ::testing::Values("include", "src", "tools"));

TEST(ProjectLayers, EveryFolderOfTheSourcesHasALine) {
  const LayerRules rules = ProjectRules();
  for (const auto& entry : fs::directory_iterator(kProject / "src")) {
    if (!entry.is_directory()) continue;
    const std::string layer = zdx_test::BytesOf(entry.path().filename());
    EXPECT_TRUE(rules.allowed.contains(layer)) << "no line for src/" << layer;
  }
}

TEST(ProjectLayers, NoLineMayIncludeWhatStandsBehindIt) {
  const LayerRules rules = ProjectRules();
  ASSERT_FALSE(rules.layers.empty());
  for (auto layer = rules.layers.begin(); layer != rules.layers.end(); ++layer) {
    for (const std::string& other : rules.allowed.at(*layer)) {
      EXPECT_NE(std::find(rules.layers.begin(), layer + 1, other), layer + 1)
          << *layer << " may include " << other;
    }
  }
}

TEST(ProjectLayers, TheEngineAndTheBackendsDoNotKnowEachOther) {
  const LayerRules rules = ProjectRules();
  for (const char* layer : {"resources", "errors", "drawing", "host", "properties"}) {
    EXPECT_FALSE(rules.allowed.at(layer).contains("backends")) << layer;
    EXPECT_FALSE(rules.allowed.at("backends").contains(layer)) << layer;
  }
}

}  // namespace
}  // namespace architecture

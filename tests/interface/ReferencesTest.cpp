// What a drawing's dependencies are, whatever the versions and forms of the drawings.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "interface/DrawingFolder.h"
#include "interface/Writings.h"
#include "support/Paths.h"

namespace {

using drawing::Xref;
using drawing::XrefBlock;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using zdx_test::FileWalk;
using zdx_test::LinesOf;
using zdx_test::NodeOwner;
using zdx_test::WalkedFile;
using zdx_test::WalkOptions;
using Lines = std::vector<std::string>;

constexpr NodeOwner kOwners[] = {NodeOwner::EachRecord, NodeOwner::Root};

class References : public testing::TestWithParam<zdx_test::WrittenAs> {
 protected:
  std::string Version() const { return std::get<0>(GetParam()); }
  const zdx_test::Writing& Form() const { return std::get<1>(GetParam()); }
  bool HasHandles() const { return Version() != "AC1009"; }
  bool TellsUnloaded() const { return Form().IsDwg() && Version() >= "AC1015"; }
  std::string RootName() const { return std::string("root") + Form().Suffix(); }

  void WriteRoot(std::vector<drawing::BlockSpec> blocks) {
    root = folder.WriteBytes(RootName(),
                             Form().make(zdx_test::DrawingOf(std::move(blocks), Version())));
  }

  using BytesByName = std::map<std::string, std::string>;

  // Made once, for they are the same in every version and form.
  static const BytesByName& Others(const std::string& root) {
    static std::map<std::string, BytesByName> made;
    BytesByName& files = made[root];
    if (!files.empty()) return files;
    const auto add = [&files](const std::string& name, std::vector<drawing::BlockSpec> blocks,
                              const std::string& version) {
      files[name] = zdx_test::MadeDrawing(name, std::move(blocks), version);
    };
    add("a.dwg",
        {XrefBlock("c", "c.dxf"), XrefBlock("root", root),
         XrefBlock("over", "over.dxf", Xref::Overlaid)},
        "AC1018");
    add("away.dwg", {XrefBlock("behind", "behind.dxf")}, "AC1032");
    add("behind.dxf", {}, "AC1014");
    add("b.dxf", {XrefBlock("c", "c.dxf")}, "AC1009");
    add("c.dxf", {XrefBlock("a", "a.dwg"), XrefBlock("self", "c.dxf")}, "AC1021");
    add("over.dxf", {XrefBlock("deep", "deep.dxf")}, "AC1021");
    add("deep.dxf", {}, "AC1032");
    return files;
  }

  // A drawing of each sort: shared, in circles, overlaid at both depths, missing, unloaded.
  void WriteAll() {
    drawing::BlockSpec away = XrefBlock("away", "away.dwg");
    away.isUnloaded = true;
    WriteRoot({XrefBlock("a", "a.dwg"), XrefBlock("gone", "gone.dwg"), away,
               XrefBlock("b", "b.dxf", Xref::Overlaid)});
    for (const auto& [name, bytes] : Others(RootName())) folder.WriteBytes(name, bytes);
  }

  Lines WithAway(Lines lines) const {
    lines[2] = TellsUnloaded() ? "root > away.dwg unloaded" : "root > away.dwg";
    return lines;
  }

  Lines AllLines() const {
    return WithAway({"root > a.dwg", "root > gone.dwg missing", "", "root > b.dxf", "a.dwg > c.dxf",
                     "a.dwg > " + RootName() + " repeated", "a.dwg > over.dxf",
                     "away.dwg > behind.dxf", "b.dxf > c.dxf repeated", "c.dxf > a.dwg repeated",
                     "c.dxf > c.dxf repeated"});
  }

  // The files of the written drawing, of which there are some.
  std::vector<WalkedFile> Files(const ZDXEngine::DependencySettings& settings = {}) const {
    WalkOptions options;
    options.settings = settings;
    const std::vector<WalkedFile> files = zdx_test::WalkFiles(root, options).files;
    EXPECT_EQ(files.size(), AllLines().size());
    return files;
  }

  zdx_test::DrawingFolder folder;
  std::filesystem::path root;
};

TEST_P(References, AreListedBreadthFirstAndEachDrawingIsFollowedOnce) {
  WriteAll();
  for (const NodeOwner owner : kOwners) {
    const FileWalk walk = zdx_test::WalkFiles(root, {.owner = owner});
    EXPECT_THAT(LinesOf(walk), ElementsAreArray(AllLines()));
    EXPECT_FALSE(walk.statusFlag);
    EXPECT_TRUE(walk.hasDatabase);
    EXPECT_EQ(walk.drawingType, ZDXEngine::DwgFileType::Zent);
  }
}

TEST_P(References, OfTheDrawingAloneAreThoseOfItsOwnRecords) {
  WriteAll();
  for (const NodeOwner owner : kOwners) {
    const FileWalk walk = zdx_test::WalkFiles(root, {.directOnly = true, .owner = owner});
    EXPECT_THAT(LinesOf(walk), ElementsAreArray(WithAway({"root > a.dwg", "root > gone.dwg missing",
                                                          "", "root > b.dxf"})));
  }
}

TEST_P(References, FollowInnerOverlaysOnlyIfTheyAreAskedTo) {
  WriteAll();
  WalkOptions options;
  options.settings.WalkBit10 = true;
  Lines expected = AllLines();
  const auto behind = std::find(expected.begin(), expected.end(), "b.dxf > c.dxf repeated");
  // Behind what hangs under the drawings before it, in the order in which they were met.
  expected.insert(behind + 2, "over.dxf > deep.dxf");
  Lines told = LinesOf(zdx_test::WalkFiles(root, options));
  std::sort(expected.begin(), expected.end());
  std::sort(told.begin(), told.end());
  EXPECT_EQ(told, expected);
}

TEST_P(References, TellTheRootByItsPath) {
  WriteAll();
  const FileWalk walk = zdx_test::WalkFiles(root);
  EXPECT_EQ(walk.root.refId, "0");
  EXPECT_EQ(zdx_test::PathOf(std::string_view(walk.root.source)), root);
  EXPECT_EQ(walk.root.fileType, 1);
}

TEST_P(References, TellFoundFilesByTheirFullPathsAndOthersAsTheyAreStored) {
  WriteAll();
  for (const WalkedFile& file : Files()) {
    if (file.StoredPath() == "gone.dwg") {
      EXPECT_EQ(file.source, "gone.dwg");
      EXPECT_EQ(file.detail.problem, ZDXEngine::DependencyProblem::NotFound);
    } else {
      const std::filesystem::path source = zdx_test::PathOf(std::string_view(file.source));
      EXPECT_TRUE(source.is_absolute()) << file.source;
      EXPECT_TRUE(std::filesystem::equivalent(source, folder.At(file.StoredPath())));
      EXPECT_EQ(file.detail.problem, ZDXEngine::DependencyProblem::None);
    }
    EXPECT_EQ(file.fileType, 1);
    EXPECT_TRUE(file.canBeRepathed);
  }
}

TEST_P(References, HaveIdsOfTheirOwn) {
  WriteAll();
  std::set<std::string> ids = {"0"};
  for (const WalkedFile& file : Files()) {
    EXPECT_TRUE(ids.insert(file.refId).second) << file.refId;
  }
}

// Where records have no handles, no block can be found by one.
TEST_P(References, AreOverlaysIfTheirBlocksAreOnes) {
  WriteAll();
  ZDXEngine::DependencySettings settings;
  settings.DetectOverlays = true;
  for (const WalkedFile& file : Files(settings)) {
    EXPECT_EQ(file.isOverlay, file.StoredPath() == "b.dxf" && HasHandles()) << file.StoredPath();
    const bool isOverlaid = file.StoredPath() == "b.dxf" || file.StoredPath() == "over.dxf";
    EXPECT_EQ(file.detail.kind, isOverlaid ? ZDXEngine::DependencyKind::OverlaidDrawing
                                           : ZDXEngine::DependencyKind::AttachedDrawing);
  }
}

INSTANTIATE_TEST_SUITE_P(Dxf, References,
                         testing::Combine(testing::ValuesIn(zdx_test::kDxfVersions),
                                          testing::Values(zdx_test::kDxfWritings[0],
                                                          zdx_test::kDxfWritings[3])),
                         zdx_test::WritingTestName);
INSTANTIATE_TEST_SUITE_P(Dwg, References,
                         testing::Combine(testing::ValuesIn(zdx_test::kDwgVersions),
                                          testing::Values(zdx_test::kDwgWritings[0])),
                         zdx_test::WritingTestName);

// What the walked drawing's version doesn't change.
class ReferencesOfOneVersion : public testing::Test {
 protected:
  zdx_test::DrawingFolder folder;
  std::filesystem::path root;
};

TEST_F(ReferencesOfOneVersion, AreLookedForBesideTheDrawingThatNamesThem) {
  root = folder.Write("root.dwg",
                      {XrefBlock("a", "sub\\a.dwg"), XrefBlock("moved", "D:\\old place\\moved.dwg"),
                       XrefBlock("bare", "bare")});
  folder.Write("sub/a.dwg", {XrefBlock("b", "b.dxf"), XrefBlock("up", "..\\up.dwg")});
  folder.Write("sub/b.dxf");
  folder.Write("up.dwg");
  folder.Write("moved.dwg");
  folder.Write("bare.dwg");
  EXPECT_THAT(LinesOf(zdx_test::WalkFiles(root)),
              ElementsAre("root > sub\\a.dwg", "root > D:\\old place\\moved.dwg", "root > bare",
                          "sub\\a.dwg > b.dxf", "sub\\a.dwg > ..\\up.dwg"));
}

TEST_F(ReferencesOfOneVersion, OfADrawingThatNamesNoneAreNone) {
  root = folder.Write("root.dwg", {});
  for (const NodeOwner owner : kOwners) {
    const FileWalk walk = zdx_test::WalkFiles(root, {.owner = owner});
    EXPECT_THAT(walk.files, IsEmpty());
    EXPECT_EQ(walk.root.refId, "0");
  }
}

TEST_F(ReferencesOfOneVersion, GoDownAChainOfManyDrawings) {
  constexpr int kLength = 60;
  const auto name = [](int i) {
    return "link" + std::to_string(i) + (i % 2 == 0 ? ".dwg" : ".dxf");
  };
  root = folder.Write("root.dwg", {XrefBlock("next", name(0))});
  for (int i = 0; i < kLength; ++i) folder.Write(name(i), {XrefBlock("next", name(i + 1))});
  const FileWalk walk = zdx_test::WalkFiles(root);
  ASSERT_EQ(walk.files.size(), kLength + 1u);
  EXPECT_FALSE(walk.files.back().detail.exists);
  EXPECT_EQ(walk.files.back().detail.parent, std::size_t{kLength} - 1);
}

}  // namespace

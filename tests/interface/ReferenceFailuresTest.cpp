// What becomes of drawings that can't be followed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "ZDXEngine/ZdxEngineException.h"
#include "interface/DrawingFolder.h"
#include "support/HeldFile.h"
#include "support/Paths.h"
#include "support/PublicRead.h"
#include "support/dwg/DwgMaker.h"

namespace {

using drawing::XrefBlock;
using zdx_test::FileWalk;
using zdx_test::WalkedFile;
using Problem = ZDXEngine::DependencyProblem;

// A drawing that refers to one that makes trouble and to a sound one, of the format that the
// parameter names.
class ReferenceFailures : public testing::TestWithParam<const char*> {
 protected:
  // Walks, and gives what is told of the troublesome one; the walk must go on behind it.
  WalkedFile Troubled(const std::string& name) {
    const auto root = folder.Write(std::string("root") + GetParam(),
                                   {XrefBlock("bad", name), XrefBlock("good", "good.dwg")});
    folder.Write("good.dwg", {XrefBlock("inner", "inner.dxf")});
    folder.Write("inner.dxf");
    for (const auto owner : {zdx_test::NodeOwner::Root, zdx_test::NodeOwner::EachRecord}) {
      const FileWalk walk = zdx_test::WalkFiles(root, {.owner = owner});
      EXPECT_EQ(walk.files.size(), 3u);
      EXPECT_EQ(walk.At("inner.dxf").detail.problem, Problem::None);
      if (walk.files.empty()) return {};
      if (owner == zdx_test::NodeOwner::EachRecord) return walk.files.front();
    }
    return {};
  }

  zdx_test::DrawingFolder folder;
};

std::string SoundDrawing() { return dwg::Make(zdx_test::DrawingOf({}, "AC1032")); }

TEST_P(ReferenceFailures, AMissingDrawingIsListed) {
  const WalkedFile file = Troubled("gone.dwg");
  EXPECT_FALSE(file.detail.exists);
  EXPECT_EQ(file.detail.problem, Problem::NotFound);
}

TEST_P(ReferenceFailures, ADrawingOfALaterVersionCantBeRead) {
  std::string bytes = SoundDrawing();
  bytes.replace(0, 6, "AC1099");
  folder.WriteBytes("bad.dwg", bytes);
  const WalkedFile file = Troubled("bad.dwg");
  EXPECT_TRUE(file.detail.exists);
  EXPECT_EQ(file.detail.problem, Problem::NotReadable);
  EXPECT_NE(file.detail.reason.find(L"AC1099"), std::wstring::npos);
}

TEST_P(ReferenceFailures, AFileThatIsNoDrawingCantBeRead) {
  for (const char* name : {"bad.dwg", "bad.dxf"}) {
    folder.WriteBytes(name, "no drawing at all");
    EXPECT_EQ(Troubled(name).detail.problem, Problem::NotReadable) << name;
    folder.WriteBytes(name, "");
    EXPECT_EQ(Troubled(name).detail.problem, Problem::NotReadable) << name;
  }
}

TEST_P(ReferenceFailures, ADrawingWhosePartsCantBeFoundIsDamaged) {
  std::string bytes = SoundDrawing();
  bytes.resize(0x100);
  folder.WriteBytes("bad.dwg", bytes + std::string(5000, 'x'));
  const WalkedFile file = Troubled("bad.dwg");
  EXPECT_TRUE(file.detail.exists);
  EXPECT_EQ(file.detail.problem, Problem::Damaged);
  EXPECT_FALSE(file.detail.reason.empty());
}

TEST_P(ReferenceFailures, AFolderIsNoDrawing) {
  std::filesystem::create_directory(folder.At("bad.dwg"));
  EXPECT_NE(Troubled("bad.dwg").detail.problem, Problem::None);
}

TEST_P(ReferenceFailures, ADrawingThatAnotherProgramHoldsIsInUse) {
  const auto path = folder.WriteBytes("bad.dwg", SoundDrawing());
  const zdx_test::HeldFile held(path);
  if (!held.holds()) GTEST_SKIP() << "no file can be held in " << path.parent_path();
  const WalkedFile file = Troubled("bad.dwg");
  EXPECT_TRUE(file.detail.exists);
  EXPECT_EQ(file.detail.problem, Problem::InUse);
}

TEST_P(ReferenceFailures, ADrawingThatMayNotBeReadIsListed) {
  const auto path = folder.WriteBytes("bad.dwg", SoundDrawing());
  std::filesystem::permissions(path, std::filesystem::perms::none);
  if (std::ifstream(path)) GTEST_SKIP() << "this user may read every file";
  const WalkedFile file = Troubled("bad.dwg");
  EXPECT_TRUE(file.detail.exists);
  EXPECT_EQ(file.detail.problem, Problem::NoAccess);
}

INSTANTIATE_TEST_SUITE_P(Formats, ReferenceFailures, testing::Values(".dwg", ".dxf"),
                         [](const auto& info) { return std::string(info.param).substr(1); });

// The walked drawing itself: the walk ends by an exception, and there is no record.
template <class Error>
void ExpectWalkToThrow(const std::filesystem::path& root) {
  zdx_test::StartEngine();
  auto& manager = ZDXEngine::FileReferenceMgr::Instance();
  ZDXEngine::DwgDependentFile placeholder;
  ZDXEngine::DwgDependentFile* record = &placeholder;
  bool statusFlag = true;
  ZDXEngine::DwgFileType type = ZDXEngine::DwgFileType::Unrecognized;
  EXPECT_THROW(
      manager.GetDependencies(zdx_test::NameOf(root), {}, statusFlag, record, type, false, {}),
      Error);
  EXPECT_EQ(record, nullptr);
  EXPECT_FALSE(statusFlag);
}

TEST(WalkedDrawing, ThatIsMissingOrBadIsAnException) {
  const zdx_test::DrawingFolder folder;
  ExpectWalkToThrow<ZDXEngine::NotFound>(folder.At("gone.dwg"));
  ExpectWalkToThrow<ZDXEngine::BadDwgHeader>(folder.WriteBytes("text.dwg", "no drawing at all"));
  ExpectWalkToThrow<ZDXEngine::BadDwgHeader>(folder.WriteBytes("text.dxf", "no drawing at all"));
  const auto path = folder.WriteBytes("held.dwg", SoundDrawing());
  const zdx_test::HeldFile held(path);
  if (!held.holds()) GTEST_SKIP() << "no file can be held in " << path.parent_path();
  ExpectWalkToThrow<ZDXEngine::SharingViolation>(path);
}

}  // namespace

// The walker as the engine calls it, on drawings made for it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "backends/database/model/Report.h"
#include "backends/database/zndb/DatabaseProvider.h"
#include "backends/walker/Node.h"
#include "backends/walker/WalkerProvider.h"
#include "platform/econvey/ZnDwgDepends.h"
#include "platform/zndb/Provider.h"
#include "support/Paths.h"
#include "support/Scratch.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"
#include "walker/FolderHost.h"
#include "walker/MadeUpWorld.h"

namespace walker_test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zdx::walker::ErrorCondition;
using zdx::walker::Node;
using ErrorInfo = ZnDwgDepends::DwgDepends::ErrorInfo;

ZnDwgDepends::Provider* BindTestedWalker() {
  static zdx::WalkerProvider provider;
  return &provider;
}

drawing::DrawingSpec Referring(const std::vector<std::string>& paths) {
  drawing::DrawingSpec spec;
  int number = 0;
  for (const std::string& path : paths) {
    spec.blocks.push_back(drawing::XrefBlock("REF" + std::to_string(++number), path));
  }
  spec.textStyles.clear();
  return spec;
}

class EmbeddedWalk : public testing::Test {
 protected:
  EmbeddedWalk()
      : before_(zndb::InstallProvider(zdx::database::EmbeddedProvider())),
        hostBefore_(zndbHostApplicationServices()),
        host(std::make_unique<FolderHost>()) {
    zndbSetHostApplicationServices(host.get());
    ZnDwgDepends::InstallBinder(BindTestedWalker);
  }
  ~EmbeddedWalk() override {
    files.clear();
    zndbSetHostApplicationServices(hostBefore_);
    host.reset();
    zndb::InstallProvider(before_);
  }

  void WriteDwg(const std::string& name, const std::vector<std::string>& paths = {}) {
    folder.Write(name, dwg::Make(Referring(paths)));
  }
  void WriteDxf(const std::string& name, const std::vector<std::string>& paths = {}) {
    folder.Write(name, dxf::Make(Referring(paths)));
  }
  std::wstring PathTo(const std::string& name) const {
    return zdx_test::NameOf(folder.path() / zdx_test::PathOf(name));
  }

  std::unique_ptr<ZnDwgDepends::DwgDepends> Prepare(const std::wstring& path,
                                                    bool directOnly = false) {
    auto depends = std::make_unique<ZnDwgDepends::DwgDepends>(path.c_str(), kAlways, L"", L"",
                                                              directOnly, true);
    depends->setDeleteRoot(false);
    return depends;
  }

  // Walks; the nodes are this object's then, unless the walked drawing can't be read.
  void Walk(const std::string& name) {
    auto depends = Prepare(PathTo(name));
    std::vector<ZnDwgDepends::File*> given;
    EXPECT_TRUE(depends->getDependencies(given, true));
    depends->getErrorInfos(errors);
    names.clear();
    for (const ZnDwgDepends::File* const file : given) names.push_back(LeafOf(*file));
    isRootRead = given.at(0)->database() != nullptr;
    if (!isRootRead) return;
    for (ZnDwgDepends::File* const file : given) files.emplace_back(file);
  }

  std::string LeafOf(const ZnDwgDepends::File& file) {
    return zdx_test::BytesOf(zdx_test::PathOf(std::wstring(file.filename())).filename());
  }

  // The condition of the one error that a walk of a drawing meets which refers to `name` alone.
  int ConditionBelow(const std::string& name) {
    WriteDwg("root.dwg", {name});
    Walk("root.dwg");
    EXPECT_TRUE(isRootRead);
    EXPECT_EQ(errors.size(), 1U);
    return errors.empty() ? -1 : static_cast<int>(errors[0].second);
  }

  const zdx_test::ScratchFolder folder;
  std::vector<std::unique_ptr<ZnDwgDepends::File>> files;
  std::vector<std::string> names;
  std::vector<ErrorInfo> errors;
  bool isRootRead = false;

 private:
  zndb::Provider* before_;
  ZnDbHostApplicationServices* hostBefore_;

 protected:
  std::unique_ptr<FolderHost> host;
};

TEST_F(EmbeddedWalk, DrawingsOfBothFormatsAreFollowed) {
  WriteDwg("root.dwg", {"a.dxf", "b.dwg"});
  WriteDxf("a.dxf", {"c.dwg"});
  WriteDwg("b.dwg");
  WriteDwg("c.dwg", {"root.dwg"});
  Walk("root.dwg");
  EXPECT_THAT(names, ElementsAre("root.dwg", "a.dxf", "b.dwg", "c.dwg", "root.dwg"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(EmbeddedWalk, OnlyTheWalkedDrawingStaysOpen) {
  WriteDwg("root.dwg", {"a.dwg"});
  WriteDwg("a.dwg");
  Walk("root.dwg");
  ASSERT_EQ(files.size(), 2U);
  ASSERT_NE(files[0]->database(), nullptr);
  EXPECT_EQ(std::wstring(files[0]->database()->originalFileName()), PathTo("root.dwg"));
  EXPECT_EQ(files[1]->database(), nullptr);
}

TEST_F(EmbeddedWalk, ADrawingsReferencesAreLookedForFromItsOwnFolder) {
  std::filesystem::create_directory(folder.path() / "sub");
  WriteDwg("root.dwg", {"sub/a.dwg"});
  WriteDwg("sub/a.dwg", {"b.dwg"});
  WriteDwg("sub/b.dwg");
  Walk("root.dwg");
  EXPECT_THAT(names, ElementsAre("root.dwg", "a.dwg", "b.dwg"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(EmbeddedWalk, TwoNamesOfOneFileAreOneDrawing) {
  WriteDwg("root.dwg", {"a.dwg", "link.dwg", "same.dwg"});
  WriteDwg("a.dwg", {"b.dwg"});
  WriteDwg("b.dwg");
  std::filesystem::create_hard_link(folder.path() / "a.dwg", folder.path() / "link.dwg");
  std::filesystem::create_hard_link(folder.path() / "root.dwg", folder.path() / "same.dwg");
  Walk("root.dwg");
  ASSERT_THAT(names, ElementsAre("root.dwg", "a.dwg", "link.dwg", "same.dwg", "b.dwg"));
  EXPECT_FALSE(dynamic_cast<const Node&>(*files[1]).facts().isRepeated);
  EXPECT_TRUE(dynamic_cast<const Node&>(*files[2]).facts().isRepeated);
  EXPECT_TRUE(dynamic_cast<const Node&>(*files[3]).facts().isRepeated);
}

TEST_F(EmbeddedWalk, IdsAreTheHandlesOfTheRecordsOfTheWalkedDrawing) {
  drawing::DrawingSpec spec = Referring({"a.dwg"});
  spec.blocks[0].handle = "4D2";
  folder.Write("root.dwg", dwg::Make(spec));
  folder.Write("a.dwg", dwg::Make(spec));
  Walk("root.dwg");
  ASSERT_EQ(files.size(), 3U);
  EXPECT_EQ(files[0]->xrefId(), 0U);
  EXPECT_EQ(files[1]->xrefId(), 0x4D2U);
  EXPECT_EQ(files[2]->xrefId(), 0x10000000004D2U);
}

TEST_F(EmbeddedWalk, AMissingDrawingIsNotFound) { EXPECT_EQ(ConditionBelow("gone.dwg"), 2); }

TEST_F(EmbeddedWalk, AMissingDrawingIsNamedAsItIsStored) {
  WriteDwg("root.dwg", {"..\\gone\\Gone.dwg"});
  Walk("root.dwg");
  EXPECT_THAT(errors, ElementsAre(ErrorInfo(L"..\\gone\\Gone.dwg", ErrorCondition::kNotFound)));
}

TEST_F(EmbeddedWalk, AFolderMayNotBeRead) {
  std::filesystem::create_directory(folder.path() / "folder.dwg");
  EXPECT_EQ(ConditionBelow("folder.dwg"), 3);
}

TEST_F(EmbeddedWalk, APipeIsNotWaitedFor) {
  if (!zdx_test::MakePipe(folder.path() / "pipe.dwg")) {
    GTEST_SKIP() << "This system has no pipes among its files.";
  }
  EXPECT_EQ(ConditionBelow("pipe.dwg"), 3);
}

TEST_F(EmbeddedWalk, AFileThatIsNoDrawingHasABadHeader) {
  folder.Write("text.dwg", "This is a text.");
  EXPECT_EQ(ConditionBelow("text.dwg"), 16);
}

TEST_F(EmbeddedWalk, ADrawingOfAnUnknownVersionHasABadHeader) {
  std::string bytes = dwg::Make(drawing::DrawingSpec());
  bytes.replace(0, 6, "AC1099");
  folder.Write("new.dwg", bytes);
  EXPECT_EQ(ConditionBelow("new.dwg"), 16);
}

TEST_F(EmbeddedWalk, ADrawingByItsExtensionIsReadAsThatFormat) {
  folder.Write("text.dwg", dxf::Make(drawing::DrawingSpec()));
  EXPECT_EQ(ConditionBelow("text.dwg"), 16);
}

TEST_F(EmbeddedWalk, ADamagedDrawingCannotBeRead) {
  std::string bytes = dwg::Make(drawing::DrawingSpec());
  bytes.resize(0x90);
  folder.Write("cut.dwg", bytes);
  EXPECT_EQ(ConditionBelow("cut.dwg"), 4);
  ASSERT_EQ(files.size(), 2U);
  EXPECT_THAT(dynamic_cast<const Node&>(*files[1]).facts().reason, testing::Not(IsEmpty()));
}

TEST_F(EmbeddedWalk, AWalkedDrawingThatCannotBeReadIsToldByItsPathAndStaysTheWalks) {
  const std::wstring path = PathTo("Gone.dwg");
  auto depends = Prepare(path);
  std::vector<ZnDwgDepends::File*> given;
  EXPECT_TRUE(depends->getDependencies(given, true));
  ASSERT_EQ(given.size(), 1U);
  EXPECT_EQ(std::wstring(given[0]->filename()), path);
  EXPECT_EQ(given[0]->database(), nullptr);
  depends->getErrorInfos(errors);
  EXPECT_THAT(errors, ElementsAre(ErrorInfo(path, ErrorCondition::kNotFound)));
}

TEST_F(EmbeddedWalk, NothingIsWrongBeforeTheWalk) {
  WriteDwg("root.dwg", {"gone.dwg"});
  auto depends = Prepare(PathTo("root.dwg"));
  errors.emplace_back(L"left over", ErrorCondition::kUnknown);
  depends->getErrorInfos(errors);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(EmbeddedWalk, ItIsWalkedOnce) {
  WriteDwg("root.dwg");
  auto depends = Prepare(PathTo("root.dwg"));
  std::vector<ZnDwgDepends::File*> given;
  ASSERT_TRUE(depends->getDependencies(given, true));
  files.emplace_back(given.at(0));
  EXPECT_FALSE(depends->getDependencies(given, true));
  EXPECT_THAT(given, IsEmpty());
}

TEST_F(EmbeddedWalk, AWalkThatKeepsItsNodesDeletesThem) {
  WriteDwg("root.dwg", {"a.dwg"});
  auto depends = Prepare(PathTo("root.dwg"));
  depends->setDeleteRoot(true);
  std::vector<ZnDwgDepends::File*> given;
  ASSERT_TRUE(depends->getDependencies(given, true));
  EXPECT_EQ(given.size(), 2U);
}

TEST_F(EmbeddedWalk, NodesOutliveTheWalk) {
  WriteDwg("root.dwg", {"a.dwg"});
  WriteDwg("a.dwg");
  Walk("root.dwg");
  ASSERT_EQ(files.size(), 2U);
  files.erase(files.begin());
  EXPECT_EQ(LeafOf(*files[0]), "a.dwg");
}

TEST_F(EmbeddedWalk, TheLastReportIsThatOfTheWalkedDrawing) {
  WriteDwg("root.dwg", {"text.dwg"});
  folder.Write("text.dwg", "This is a text.");
  Walk("root.dwg");
  ASSERT_EQ(errors.size(), 1U);
  EXPECT_EQ(zdx::model::Report::Last().path, PathTo("root.dwg"));
  EXPECT_THAT(zdx::model::Report::Last().errors, IsEmpty());
}

TEST_F(EmbeddedWalk, AnExceptionOfTheHostPassesAndKeepsTheReport) {
  WriteDwg("root.dwg", {"a.dwg"});
  WriteDwg("a.dwg", {"forbidden.dwg"});
  host->forbidden = L"forbidden.dwg";
  auto depends = Prepare(PathTo("root.dwg"));
  std::vector<ZnDwgDepends::File*> given;
  EXPECT_THROW(depends->getDependencies(given, true), std::runtime_error);
  EXPECT_EQ(zdx::model::Report::Last().path, PathTo("root.dwg"));
}

TEST_F(EmbeddedWalk, WithoutAHostNothingIsFound) {
  WriteDwg("root.dwg", {"a.dwg"});
  WriteDwg("a.dwg");
  zndbSetHostApplicationServices(nullptr);
  Walk("root.dwg");
  EXPECT_THAT(errors, ElementsAre(ErrorInfo(L"a.dwg", ErrorCondition::kNotFound)));
}

}  // namespace
}  // namespace walker_test

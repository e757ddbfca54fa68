// What the library tells of references beyond their records.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "ZDXEngine/DependencyDetails.h"
#include "backends/System.h"
#include "backends/walker/Node.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace dependency_details_test {
namespace {

using namespace ZDXEngine;
using zdx::model::FileUse;
using zdx::walker::ErrorCondition;
using zdx::walker::FileFacts;
using zdx::walker::Node;

// Records over nodes that a test makes up.
class DependencyDetails : public testing::Test {
 protected:
  DependencyDetails()
      : paths_(zdx::MakeSystemPaths()), before_(os::InstallPathProvider(paths_.get())) {
    FileFacts facts;
    facts.filename = zdx_test::NameOf(folder.path() / "root.dwg");
    root = std::make_unique<Node>(std::move(facts));
    rootRecord = std::make_unique<ZnDwgDependentFile>(root.get(), L"0", true);
  }
  ~DependencyDetails() override { os::InstallPathProvider(before_); }

  Node& Add(FileFacts facts) {
    if (facts.parent == nullptr) facts.parent = root.get();
    nodes_.push_back(std::make_unique<Node>(std::move(facts)));
    records_.push_back(std::make_unique<ZnDwgDependentFile>(nodes_.back().get(), L"1", false));
    records.push_back(records_.back().get());
    return *nodes_.back();
  }

  // Of a service's record.
  DependencyDetail Service(const std::wstring& filePath, const std::wstring& absolutePath) {
    DwgDependentFile record(filePath, L"", L"v1", FileType{10}, false);
    record.SetAbsolutePath(absolutePath);
    return DescribeDependencies(rootRecord.get(), {&record}).at(0);
  }

  const zdx_test::ScratchFolder folder;
  std::unique_ptr<Node> root;
  std::unique_ptr<ZnDwgDependentFile> rootRecord;
  std::vector<DwgDependentFile*> records;

 private:
  std::unique_ptr<os::PathProvider> paths_;
  os::PathProvider* before_;
  std::vector<std::unique_ptr<Node>> nodes_;
  std::vector<std::unique_ptr<ZnDwgDependentFile>> records_;
};

TEST_F(DependencyDetails, ARecordTellsWhatTheWalkFound) {
  FileFacts facts;
  facts.use = FileUse::kOverlaidDrawing;
  facts.storedPath = L"..\\a.dwg";
  facts.name = L"SITE";
  facts.filename = L"/plans/a.dwg";
  facts.isFound = true;
  facts.isUnloaded = true;
  facts.isRepeated = true;
  facts.condition = ErrorCondition::kReadFailed;
  facts.reason = L"It is damaged.";
  Add(facts);
  const auto details = DescribeDependencies(rootRecord.get(), records);
  ASSERT_EQ(details.size(), 1U);
  EXPECT_EQ(details[0].kind, DependencyKind::OverlaidDrawing);
  EXPECT_EQ(details[0].storedPath, L"..\\a.dwg");
  EXPECT_EQ(details[0].name, L"SITE");
  EXPECT_EQ(details[0].parent, std::nullopt);
  EXPECT_TRUE(details[0].exists);
  EXPECT_TRUE(details[0].isUnloaded);
  EXPECT_TRUE(details[0].isRepeated);
  EXPECT_EQ(details[0].problem, DependencyProblem::Damaged);
  EXPECT_EQ(details[0].reason, L"It is damaged.");
}

TEST_F(DependencyDetails, ARecordWithoutFindingsHasNone) {
  Add({});
  const DependencyDetail detail = DescribeDependencies(rootRecord.get(), records).at(0);
  EXPECT_FALSE(detail.exists);
  EXPECT_FALSE(detail.isUnloaded);
  EXPECT_FALSE(detail.isRepeated);
  EXPECT_EQ(detail.problem, DependencyProblem::None);
  EXPECT_EQ(detail.reason, L"");
}

TEST_F(DependencyDetails, TheParentIsToldByItsPlaceInTheList) {
  Add({});
  const Node& second = Add({});
  FileFacts below;
  below.parent = &second;
  Add(below);
  const auto details = DescribeDependencies(rootRecord.get(), records);
  EXPECT_EQ(details[1].parent, std::nullopt);
  EXPECT_EQ(details[2].parent, 1U);
}

TEST_F(DependencyDetails, EachUseHasItsKind) {
  const std::pair<FileUse, DependencyKind> kinds[] = {
      {FileUse::kAttachedDrawing, DependencyKind::AttachedDrawing},
      {FileUse::kOverlaidDrawing, DependencyKind::OverlaidDrawing},
      {FileUse::kImage, DependencyKind::Image},
      {FileUse::kPdfUnderlay, DependencyKind::PdfUnderlay},
      {FileUse::kDwfUnderlay, DependencyKind::DwfUnderlay},
      {FileUse::kDgnUnderlay, DependencyKind::DgnUnderlay},
      {FileUse::kPointCloud, DependencyKind::PointCloud},
      {FileUse::kLinkedData, DependencyKind::LinkedData},
      {FileUse::kTexture, DependencyKind::Texture},
      {FileUse::kFont, DependencyKind::Font},
      {FileUse::kBigFont, DependencyKind::BigFont},
      {FileUse::kShapeFile, DependencyKind::ShapeFile},
      {FileUse::kPlotStyleTable, DependencyKind::PlotStyleTable},
      {FileUse::kPrinter, DependencyKind::PrinterConfiguration},
      {FileUse::kStyleSheet, DependencyKind::StyleSheet},
      {FileUse::kMenu, DependencyKind::Menu},
      {FileUse::kListed, DependencyKind::Listed}};
  std::vector<DependencyKind> expected;
  for (const auto& [use, kind] : kinds) {
    FileFacts facts;
    facts.use = use;
    Add(facts);
    expected.push_back(kind);
  }
  std::vector<DependencyKind> told;
  for (const DependencyDetail& detail : DescribeDependencies(rootRecord.get(), records)) {
    told.push_back(detail.kind);
  }
  EXPECT_EQ(told, expected);
}

TEST_F(DependencyDetails, EachConditionHasItsProblem) {
  const std::pair<ErrorCondition, DependencyProblem> problems[] = {
      {ErrorCondition::kNoError, DependencyProblem::None},
      {ErrorCondition::kNotFound, DependencyProblem::NotFound},
      {ErrorCondition::kNoAccess, DependencyProblem::NoAccess},
      {ErrorCondition::kReadFailed, DependencyProblem::Damaged},
      {ErrorCondition::kSharingViolation, DependencyProblem::InUse},
      {ErrorCondition::kTooLarge, DependencyProblem::TooLarge},
      {ErrorCondition::kBadHeader, DependencyProblem::NotReadable},
      {ErrorCondition::kUnknown, DependencyProblem::Other}};
  std::vector<DependencyProblem> expected;
  for (const auto& [condition, problem] : problems) {
    FileFacts facts;
    facts.condition = condition;
    Add(facts);
    expected.push_back(problem);
  }
  std::vector<DependencyProblem> told;
  for (const DependencyDetail& detail : DescribeDependencies(rootRecord.get(), records)) {
    told.push_back(detail.problem);
  }
  EXPECT_EQ(told, expected);
}

TEST_F(DependencyDetails, AServicesFileIsLookedForInTheDrawingsFolder) {
  folder.Write("model.bin", "");
  const DependencyDetail found = Service(L"model.bin", L"");
  EXPECT_EQ(found.kind, DependencyKind::Service);
  EXPECT_EQ(found.storedPath, L"model.bin");
  EXPECT_EQ(found.parent, std::nullopt);
  EXPECT_TRUE(found.exists);
  EXPECT_EQ(found.problem, DependencyProblem::None);
  const DependencyDetail missing = Service(L"other.bin", L"");
  EXPECT_FALSE(missing.exists);
  EXPECT_EQ(missing.problem, DependencyProblem::NotFound);
}

TEST_F(DependencyDetails, AServicesAbsolutePathGoesBeforeItsFile) {
  folder.Write("model.bin", "");
  const std::wstring absolute = zdx_test::NameOf(folder.path() / "model.bin");
  EXPECT_TRUE(Service(L"other.bin", absolute).exists);
  EXPECT_TRUE(Service(absolute, L"").exists);
  EXPECT_FALSE(Service(L"model.bin", absolute + L".old").exists);
}

TEST_F(DependencyDetails, AServicesAddressIsNotMissing) {
  const DependencyDetail detail = Service(L"https://example.org/model", L"");
  EXPECT_FALSE(detail.exists);
  EXPECT_EQ(detail.problem, DependencyProblem::None);
}

TEST_F(DependencyDetails, WithoutAWalkedDrawingServicesFilesStandForThemselves) {
  folder.Write("model.bin", "");
  DwgDependentFile record(zdx_test::NameOf(folder.path() / "model.bin"), L"", L"v1", FileType{10},
                          false);
  EXPECT_TRUE(DescribeDependencies(nullptr, {&record}).at(0).exists);
}

}  // namespace
}  // namespace dependency_details_test

// Dependencies that loaded modules tell, from the client's call to the module and back.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "ZDXEngine/DwgDependentFile.h"
#include "ZDXEngine/FileReferenceMgr.h"
#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZDXService.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"
#include "support/dxf/DxfMaker.h"

namespace vertical_modules {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using ZDXEngine::DwgDependentFile;
using ZDXEngine::FileReferenceMgr;
using ZDXEngine::ServiceModules;
using ZDXEngine::ZnDwgDependentFile;

constexpr int kOtherFile = 10;

void StartEngine() {
  static const bool isStarted = [] {
    ZDXEngine::ZDXService::SetupHostApplication();
    ZDXEngine::ZDXService::ValidateHostApplication(1033);
    ZDXEngine::ZDXService::InitHostApplication();
    ZDXEngine::ZDXService::InitializeEConvyEngine();
    return true;
  }();
  (void)isStarted;
}

// A manager without services, whose services nobody else uses.  It stays until the process ends, as
// the one of the engine does.
FileReferenceMgr& NewManager() {
  static auto& managers = *new std::vector<FileReferenceMgr*>();
  managers.push_back(new FileReferenceMgr(FileReferenceMgr::Instance()));
  return *managers.back();
}

std::wstring Module(const char* name) {
  return zdx_test::NameOf(zdx_test::ThisProgram().parent_path() / name);
}

// Deletes a record as the class that it is, which has no virtual destructor.
void Delete(DwgDependentFile* record) {
  if (auto* const own = dynamic_cast<ZnDwgDependentFile*>(record)) {
    const std::unique_ptr<ZnDwgDependentFile> owner(own);
  } else {
    const std::unique_ptr<DwgDependentFile> owner(record);
  }
}

// What a walk gives, which goes as clients let it go: the walked drawing last.
struct Walked {
  std::vector<DwgDependentFile*> records;
  DwgDependentFile* root = nullptr;
  bool statusFlag = true;

  Walked() = default;
  Walked(const Walked&) = delete;
  Walked& operator=(const Walked&) = delete;
  ~Walked() {
    for (DwgDependentFile* const record : records) {
      record->Dispose();
      Delete(record);
    }
    if (root == nullptr) return;
    root->Dispose();
    Delete(root);
  }
};

std::string Words(DwgDependentFile& record) {
  const std::wstring words =
      record.GetRefId() + L" " + record.GetSourcePath() + L" [" + record.GetAbsolutePath() + L"]";
  return ZDXEngine::Utf8FromWide(words) + (record.GetSupportRePath() ? " may move" : " stays");
}

// Those that modules told.
std::vector<std::string> Told(const Walked& walked) {
  std::vector<std::string> words;
  for (DwgDependentFile* const record : walked.records) {
    if (dynamic_cast<ZnDwgDependentFile*>(record) != nullptr) continue;
    EXPECT_EQ(static_cast<int>(record->GetFileType()), kOtherFile);
    EXPECT_EQ(record->GetDestinationPath(), L"");
    EXPECT_FALSE(record->GetIsOverlay());
    words.push_back(Words(*record));
  }
  return words;
}

const std::vector<std::string> kGood = {
    "good-1 points.txt [/survey/points.txt] stays",
    "good-2 curves.txt [] may move",
};

// Runs with each owner of what a walk finds out.
class VerticalModules : public testing::TestWithParam<bool> {
 protected:
  VerticalModules() {
    StartEngine();
    FileReferenceMgr::Instance().SetUseNewDwgUpdateApproachFeatureFlag(GetParam());
    // No font either.
    spec.textStyles = {{"Standard", ""}};
    spec.blocks = {drawing::XrefBlock("Grading", "grading.dwg")};
    Write();
  }
  ~VerticalModules() override {
    FileReferenceMgr::Instance().SetUseNewDwgUpdateApproachFeatureFlag(false);
  }

  void Write() { path = zdx_test::NameOf(folder.Write("plan.dxf", dxf::Make(spec))); }
  void Walk(Walked& walked, const ServiceModules& services) {
    ZDXEngine::DwgFileType type = {};
    walked.records =
        manager.GetDependencies(path, {}, walked.statusFlag, walked.root, type, false, services);
  }

  zdx_test::ScratchFolder folder;
  drawing::DrawingSpec spec;
  std::wstring path;
  FileReferenceMgr& manager = NewManager();
};

TEST_P(VerticalModules, WhatAModuleTellsFollowsTheDrawingsOwn) {
  Walked walked;
  Walk(walked, {{L"2024", Module("good.zdx")}});
  ASSERT_THAT(walked.records, SizeIs(3));
  EXPECT_NE(dynamic_cast<ZnDwgDependentFile*>(walked.records.front()), nullptr);
  EXPECT_EQ(walked.records.front()->GetSourcePath(), L"grading.dwg");
  EXPECT_EQ(Told(walked), kGood);
  EXPECT_NE(walked.root, nullptr);
  EXPECT_FALSE(walked.statusFlag);
}

TEST_P(VerticalModules, ABareNameFindsTheModuleBesideTheProgram) {
  Walked walked;
  Walk(walked, {{L"2024", L"good.zdx"}});
  EXPECT_EQ(Told(walked), kGood);
}

TEST_P(VerticalModules, OneModuleUnderTwoVersionsIsAskedTwice) {
  Walked walked;
  Walk(walked, {{L"2024", Module("good.zdx")}, {L"2025", Module("good.zdx")}});
  EXPECT_THAT(Told(walked), ElementsAre(kGood[0], kGood[1], kGood[0], kGood[1]));
}

TEST_P(VerticalModules, WhatCannotBeUsedIsLeftOut) {
  const std::wstring text = zdx_test::NameOf(folder.Write("text.zdx", "no module"));
  for (const std::wstring& name : {Module("lacking.zdx"), Module("missing.zdx"), text,
                                   std::wstring(L"znismobj24.zdx"), std::wstring()}) {
    Walked walked;
    Walk(walked, {{L"1", Module("good.zdx")}, {L"2", name}});
    EXPECT_THAT(walked.records, SizeIs(3));
    EXPECT_EQ(Told(walked), kGood);
  }
}

TEST_P(VerticalModules, WhatIsHeldIsAskedWhenNothingIsRequested) {
  {
    Walked walked;
    Walk(walked, {{L"2024", Module("good.zdx")}});
  }
  Walked walked;
  Walk(walked, {});
  EXPECT_EQ(Told(walked), kGood);
}

TEST_P(VerticalModules, AModuleThatFailsIsAnErrorAndTheWalkedDrawingCanBeLetGo) {
  // With records of its own they would be lost.
  spec.blocks.clear();
  Write();
  Walked walked;
  try {
    Walk(walked, {{L"2024", Module("throwing.zdx")}});
    FAIL() << "nothing thrown";
  } catch (const ZDXEngine::GetVerticalDependenciesError& error) {
    EXPECT_EQ(error.errorCode, 303);
    EXPECT_EQ(error.errorMessage, L"Unable to get vertical dependencies \n");
  }
  EXPECT_NE(walked.root, nullptr);
}

// The map that a module is told stays for good; it stays in sight here.
ZDXEngine::UpdateDependenciesFunc forwardTo = nullptr;

std::vector<std::wstring> Forward(ZnDbDatabase* database, ZDXEngine::VerticalRecord& destinations) {
  static auto& kept = *new std::vector<const ZDXEngine::VerticalRecord*>();
  kept.push_back(&destinations);
  return forwardTo(database, destinations);
}

class VerticalUpdate : public VerticalModules {
 protected:
  // Walks with the module, sets the destinations, in the order of what it told, and tells it.
  void Update(const std::wstring& module, const std::vector<std::wstring>& destinations) {
    Walked walked;
    ZnDbDatabase* database = nullptr;
    ZDXEngine::DwgFileType type = {};
    walked.records =
        manager.GetZnDependencies(database, path, {}, walked.statusFlag, walked.root, type, false);
    auto& services = manager.GetExternalVerticalReferenceServices({{L"2024", module}});
    ASSERT_THAT(services, SizeIs(1));
    ZDXEngine::FileReferenceService& service = *services.begin()->second;
    EXPECT_EQ(service.GetCurrentVersion(), L"2024");
    std::vector<DwgDependentFile*> told =
        manager.GetVerticalDependencies(database, service.Get_GetDependenciesFuncPtr());
    walked.records.insert(walked.records.end(), told.begin(), told.end());
    ASSERT_EQ(told.size(), destinations.size());
    for (std::size_t i = 0; i < told.size(); ++i) told[i]->SetDestinationPath(destinations[i]);
    forwardTo = service.Get_UpdateDependenciesFuncPtr();
    EXPECT_THAT(manager.UpdateVerticalDependencies(database, told, &Forward), IsEmpty());
  }
};

TEST_P(VerticalUpdate, AModuleIsToldWhereItsFilesWent) {
  const std::filesystem::path target = folder.path() / "points.moved";
  Update(Module("good.zdx"), {zdx_test::NameOf(target), L""});
  EXPECT_EQ(zdx_test::ContentsOf(target), "good-1");
}

TEST_P(VerticalUpdate, TheExampleReadsAndWritesItsFileBesideTheDrawing) {
  const std::string links =
      "# links of the plan\npoints.txt\n\n"
      "Stra\u00DFe/missing.txt\r\n";
  folder.Write("plan.links", links);
  const std::wstring points = zdx_test::NameOf(folder.Write("points.txt", "x"));
  {
    Walked walked;
    Walk(walked, {{L"2024", Module("side_links.zdx")}});
    EXPECT_THAT(Told(walked),
                ElementsAre("links:2 points.txt [" + ZDXEngine::Utf8FromWide(points) + "] may move",
                            "links:4 Stra\u00DFe/missing.txt [] may move"));
  }
  Update(Module("side_links.zdx"), {L"moved/\u00C4.txt", L""});
  std::ifstream file(folder.path() / "plan.links");
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  EXPECT_THAT(
      lines, ElementsAre("# links of the plan", "moved/\u00C4.txt", "", "Stra\u00DFe/missing.txt"));
}

TEST_P(VerticalUpdate, TheExampleTellsNothingOfADrawingWithoutSuchAFile) {
  Walked walked;
  Walk(walked, {{L"2024", Module("side_links.zdx")}});
  EXPECT_THAT(Told(walked), IsEmpty());
  EXPECT_THAT(walked.records, SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(Owner, VerticalModules, testing::Bool());
INSTANTIATE_TEST_SUITE_P(Owner, VerticalUpdate, testing::Bool());

}  // namespace
}  // namespace vertical_modules

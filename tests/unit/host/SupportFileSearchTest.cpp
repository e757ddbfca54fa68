// Where a file is looked for that a drawing asks for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/SupportFileSearch.h"
#include "host/ZDXHostApplication.h"
#include "platform/zndb/ZnDbDatabase.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::HostApplicationParam;

namespace {

constexpr int kDrawingHint = 5;
// What no search may write to.
constexpr wchar_t kUntouched = L'#';

class FindFile : public scripted::ScriptedTest {
 protected:
  FindFile() {
    world.drawing.originalFileName = L"C:\\plans\\site.dwg";
    out.assign(os::kPathSize, kUntouched);
  }

  Zent::ErrorStatus Find(const wchar_t* name, ZnDbDatabase* asking, int hint = kDrawingHint,
                         int bufferLength = os::kPathSize) {
    ZDXEngine::ZDXHostApplication host(param);
    world.ForgetCalls();
    return host.findFile(out.data(), bufferLength, name, asking, hint);
  }
  std::vector<std::string> Calls(std::initializer_list<std::string_view> operations) {
    return world.Calls(operations);
  }
  std::vector<std::string> Looked() { return Calls({"PathFileExistsW", "SearchPathW"}); }
  // What was written, up to its terminator; empty if nothing was.
  std::wstring Found() const { return out[0] == kUntouched ? L"" : std::wstring(out.c_str()); }
  bool IsUntouched() const { return out == std::wstring(os::kPathSize, kUntouched); }

  HostApplicationParam param{.hostIdentityPrimary = L"",
                             .hostIdentitySecondary = L"",
                             .enableSupportFileSearch = true,
                             .supportSearchPath = L"D:\\support"};
  ZnDbDatabase database{false, true};
  std::wstring out;
};

TEST_F(FindFile, AFontBesideTheDrawingIsFoundThere) {
  world.paths.existing = {L"C:\\plans\\romans.shx"};
  EXPECT_EQ(Find(L"romans.shx", &database, 2), Zent::kOk);
  EXPECT_EQ(Found(), L"C:\\plans\\romans.shx");
  EXPECT_EQ(world.Count("SearchPathW"), 0);
}

TEST_F(FindFile, WithTheSearchOffAFontIsMissedUnseenEvenBesideTheDrawing) {
  param.enableSupportFileSearch = false;
  world.paths.existing = {L"C:\\plans\\romans.shx"};
  world.paths.onOwnPath = L"C:\\fonts\\romans.shx";
  EXPECT_EQ(Find(L"romans.shx", &database, 2), Zent::kFileNotFound);
  EXPECT_TRUE(IsUntouched());
  EXPECT_THAT(Calls({"PathIsRelativeW", "PathCombineW", "PathFileExistsW", "SearchPathW",
                     "originalFileName"}),
              IsEmpty());
}

TEST_F(FindFile, WithTheSearchOffADrawingIsLookedForAllTheSame) {
  param.enableSupportFileSearch = false;
  world.paths.inFolders[L"D:\\support"] = L"D:\\support\\part.dwg";
  EXPECT_EQ(Find(L"part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Found(), L"D:\\support\\part.dwg");
  EXPECT_THAT(Looked(), ElementsAre("PathFileExistsW(C:\\plans\\part.dwg)",
                                    "PathFileExistsW(C:\\plans\\part.dwg)",
                                    "SearchPathW(null, part.dwg, .dwg, 260)",
                                    "SearchPathW(D:\\support, part.dwg, .dwg, 260)"));
}

TEST_F(FindFile, ADrawingIsToldByItsExtensionInAnyCase) {
  param.enableSupportFileSearch = false;
  for (const wchar_t* name : {L"a.dwg", L"a.DWG", L"a.dWg"}) {
    world.paths.existing = {L"C:\\plans\\" + std::wstring(name)};
    EXPECT_EQ(Find(name, &database, 0), Zent::kOk);
  }
}

TEST_F(FindFile, AnExtensionIsComparedWithoutRegardToCase) {
  Find(L"a.dwT", nullptr);
  EXPECT_THAT(Calls({"Order"}), ElementsAre("Order(.dwT, .DWG, 0, 1)"));
}

TEST_F(FindFile, TemplatesAndStandardsAreNoDrawings) {
  for (const wchar_t* name : {L"a.dwt", L"a.DWT", L"a.dws", L"a.dxf", L"a"}) {
    world.paths.existing = {L"C:\\plans\\" + std::wstring(name)};
    param.enableSupportFileSearch = false;
    EXPECT_EQ(Find(name, &database), Zent::kFileNotFound);
    param.enableSupportFileSearch = true;
    EXPECT_EQ(Find(name, &database), Zent::kOk);
  }
}

TEST_F(FindFile, ATemplateOfAnotherFolderIsNotLookedForBesideTheDrawing) {
  world.paths.existing = {L"C:\\plans\\a.dwt", L"E:\\old\\a.dwt"};
  EXPECT_EQ(Find(L"E:\\old\\a.dwt", &database), Zent::kFileNotFound);
  EXPECT_THAT(Looked(), ElementsAre("SearchPathW(null, E:\\old\\a.dwt, .dwg, 260)",
                                    "SearchPathW(D:\\support, E:\\old\\a.dwt, .dwg, 260)"));
}

TEST_F(FindFile, TheHintPicksTheExtensionOfOtherFiles) {
  const std::pair<int, const char*> kRows[] = {
      {-1, "null"}, {0, "null"}, {1, "null"}, {2, ".shx"}, {3, ".ttf"}, {4, "null"},
      {5, ".dwg"},  {6, ".pat"}, {7, ".zdx"}, {8, ".fmp"}, {9, "null"}, {100, "null"},
  };
  for (const auto& [hint, extension] : kRows) {
    EXPECT_EQ(Find(L"name", nullptr, hint), Zent::kFileNotFound);
    EXPECT_THAT(Looked(),
                ElementsAre("SearchPathW(null, name, " + std::string(extension) + ", 260)",
                            "SearchPathW(D:\\support, name, " + std::string(extension) + ", 260)"));
  }
}

TEST_F(FindFile, ADrawingIsLookedForAsOneWhateverTheHint) {
  for (const int hint : {0, 2, 3, 8}) {
    Find(L"part.dwg", nullptr, hint);
    EXPECT_THAT(Looked(), ElementsAre("SearchPathW(null, part.dwg, .dwg, 260)",
                                      "SearchPathW(D:\\support, part.dwg, .dwg, 260)"));
  }
}

TEST_F(FindFile, ANameWithoutExtensionIsADrawingForTheSearchAlone) {
  world.paths.onOwnPath = L"C:\\parts\\part.dwg";
  EXPECT_EQ(Find(L"part", &database), Zent::kOk);
  EXPECT_THAT(Looked(), ElementsAre("PathFileExistsW(C:\\plans\\part)",
                                    "SearchPathW(null, part, .dwg, 260)"));
  param.enableSupportFileSearch = false;
  EXPECT_EQ(Find(L"part", &database), Zent::kFileNotFound);
}

TEST_F(FindFile, ARelativeDrawingIsTriedWholeAndThenByItsLastElement) {
  world.paths.existing = {L"C:\\plans\\details\\part.dwg", L"C:\\plans\\part.dwg"};
  EXPECT_EQ(Find(L"details\\part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Found(), L"C:\\plans\\details\\part.dwg");
  world.paths.existing = {L"C:\\plans\\part.dwg"};
  EXPECT_EQ(Find(L"details\\part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Found(), L"C:\\plans\\part.dwg");
  EXPECT_THAT(Looked(), ElementsAre("PathFileExistsW(C:\\plans\\details\\part.dwg)",
                                    "PathFileExistsW(C:\\plans\\part.dwg)"));
}

TEST_F(FindFile, AnAbsoluteDrawingThatExistsIsCopiedAsItStands) {
  world.paths.existing = {L"E:\\old\\part.dwg", L"C:\\plans\\part.dwg"};
  EXPECT_EQ(Find(L"E:\\old\\part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Found(), L"E:\\old\\part.dwg");
  EXPECT_THAT(Looked(), ElementsAre("PathFileExistsW(E:\\old\\part.dwg)"));
  EXPECT_EQ(world.Count("originalFileName"), 0);
}

TEST_F(FindFile, TheCopyOfAnAbsoluteDrawingDecidesAndOfNoOther) {
  world.paths.existing = {L"E:\\old\\part.dwg", L"C:\\plans\\part.dwg", L"C:\\plans\\a.shx"};
  world.Fail("wcsncpy_s", os::kBufferTooSmall);
  EXPECT_EQ(Find(L"E:\\old\\part.dwg", &database), os::kBufferTooSmall);
  EXPECT_EQ(Find(L"part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Find(L"F:\\new\\part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Find(L"a.shx", &database), Zent::kOk);
}

TEST_F(FindFile, AnAbsoluteDrawingThatIsGoneIsFoundBesideTheOneThatAsks) {
  world.paths.existing = {L"C:\\plans\\part.dwg"};
  EXPECT_EQ(Find(L"E:\\old\\part.dwg", &database), Zent::kOk);
  EXPECT_EQ(Found(), L"C:\\plans\\part.dwg");
  EXPECT_THAT(Looked(), ElementsAre("PathFileExistsW(E:\\old\\part.dwg)",
                                    "PathFileExistsW(C:\\plans\\part.dwg)"));
}

TEST_F(FindFile, WithoutADrawingThatAsksOnlyTheSearchRuns) {
  world.paths.existing = {L"E:\\old\\part.dwg", L"a.shx"};
  EXPECT_EQ(Find(L"E:\\old\\part.dwg", nullptr), Zent::kFileNotFound);
  EXPECT_EQ(Find(L"a.shx", nullptr), Zent::kFileNotFound);
  EXPECT_THAT(Calls({"PathIsRelativeW", "PathCombineW", "PathFileExistsW"}), IsEmpty());
  world.paths.onOwnPath = L"E:\\old\\part.dwg";
  EXPECT_EQ(Find(L"E:\\old\\part.dwg", nullptr), Zent::kOk);
  EXPECT_EQ(Found(), L"E:\\old\\part.dwg");
}

TEST_F(FindFile, TheSystemsPathComesBeforeTheClients) {
  world.paths.onOwnPath = L"C:\\fonts\\a.shx";
  world.paths.inFolders[L"D:\\support"] = L"D:\\support\\a.shx";
  EXPECT_EQ(Find(L"a.shx", &database, 2), Zent::kOk);
  EXPECT_EQ(Found(), L"C:\\fonts\\a.shx");
  EXPECT_EQ(world.Count("SearchPathW"), 1);
}

TEST_F(FindFile, WithoutAPathOfTheClientsThereIsOneSearch) {
  param.supportSearchPath.clear();
  EXPECT_EQ(Find(L"a.shx", &database, 2), Zent::kFileNotFound);
  EXPECT_THAT(Calls({"SearchPathW"}), ElementsAre("SearchPathW(null, a.shx, .shx, 260)"));
  EXPECT_EQ(Find(L"part.dwg", &database), Zent::kFileNotFound);
  EXPECT_THAT(Calls({"SearchPathW"}), ElementsAre("SearchPathW(null, part.dwg, .dwg, 260)"));
}

TEST_F(FindFile, ASearchWhoseBufferIsTooSmallGoesOnToTheNextWithTheSameOne) {
  world.paths.onOwnPath = L"C:\\a very long folder\\a.shx";
  world.paths.inFolders[L"D:\\support"] = L"D:\\a.shx";
  EXPECT_EQ(Find(L"a.shx", nullptr, 2, 9), Zent::kOk);
  EXPECT_EQ(Found(), L"D:\\a.shx");
  EXPECT_THAT(Calls({"SearchPathW"}), ElementsAre("SearchPathW(null, a.shx, .shx, 9)",
                                                  "SearchPathW(D:\\support, a.shx, .shx, 9)"));
}

TEST_F(FindFile, AnAnswerAsLongAsTheBufferIsAMiss) {
  param.supportSearchPath.clear();
  world.paths.onOwnPath = L"C:\\a.shx";
  EXPECT_EQ(Find(L"a.shx", nullptr, 2, 8), Zent::kFileNotFound);
  EXPECT_EQ(Find(L"a.shx", nullptr, 2, 9), Zent::kOk);
}

TEST_F(FindFile, ALengthThatIsTheBuffersIsAMiss) {
  world.Fail("SearchPathW", os::kPathSize);
  EXPECT_EQ(Find(L"a.shx", nullptr, 2), Zent::kFileNotFound);
  EXPECT_EQ(world.Count("SearchPathW"), 2);
  world.Fail("SearchPathW", os::kPathSize - 1);
  EXPECT_EQ(Find(L"a.shx", nullptr, 2), Zent::kOk);
}

TEST_F(FindFile, ABufferOfNoLengthIsNeverWrittenByTheSearch) {
  world.paths.onOwnPath = L"C:\\a.shx";
  world.paths.inFolders[L"D:\\support"] = L"D:\\a.shx";
  for (const int length : {0, -1}) {
    EXPECT_EQ(Find(L"a.shx", nullptr, 2, length), Zent::kFileNotFound);
    EXPECT_TRUE(IsUntouched());
    EXPECT_THAT(Calls({"SearchPathW"}), ElementsAre("SearchPathW(null, a.shx, .shx, 0)",
                                                    "SearchPathW(D:\\support, a.shx, .shx, 0)"));
  }
}

TEST_F(FindFile, WhatLiesBesideTheDrawingIsCopiedWhateverTheBuffersLength) {
  world.paths.existing = {L"C:\\plans\\a.shx", L"C:\\plans\\part.dwg", L"E:\\part.dwg"};
  for (const wchar_t* name : {L"a.shx", L"part.dwg", L"E:\\part.dwg", L"E:\\old\\part.dwg"}) {
    EXPECT_EQ(Find(name, &database, 2, 3), Zent::kOk);
    EXPECT_THAT(Calls({"wcsncpy_s"}),
                ElementsAre("wcsncpy_s(260, " + scripted::Shown(Found()) + ", 260)"));
  }
}

TEST_F(FindFile, PathsArePutTogetherInZeroedBuffers) {
  Find(L"details\\part.dwg", &database);
  EXPECT_THAT(Calls({"PathCombineW"}), ElementsAre("PathCombineW(C:\\plans, details\\part.dwg)",
                                                   "PathCombineW(C:\\plans, part.dwg)"));
  Find(L"a.shx", &database, 2);
  EXPECT_THAT(Calls({"PathCombineW"}), ElementsAre("PathCombineW(C:\\plans, a.shx)"));
}

TEST_F(FindFile, APathThatCannotBePutTogetherIsMissed) {
  world.paths.existing = {L"C:\\plans\\part.dwg"};
  world.Fail("PathCombineW", 1);
  EXPECT_EQ(Find(L"part.dwg", &database), Zent::kFileNotFound);
  const std::wstring longName = std::wstring(300, L'a') + L".dwg";
  world.ForgetScripts();
  EXPECT_EQ(Find(longName.c_str(), &database), Zent::kFileNotFound);
  EXPECT_TRUE(IsUntouched());
}

TEST_F(FindFile, AskingLeavesTheParametersToTheNextUpdate) {
  ZDXEngine::ZDXHostApplication host(param);
  world.paths.inFolders[L"D:\\support"] = L"D:\\support\\a.shx";
  EXPECT_EQ(host.findFile(out.data(), 260, L"a.shx", nullptr, 2), Zent::kOk);
  param.supportSearchPath = L"E:\\other";
  host.UpdateParam(param);
  EXPECT_EQ(host.findFile(out.data(), 260, L"a.shx", nullptr, 2), Zent::kFileNotFound);
  param.enableSupportFileSearch = false;
  host.UpdateParam(param);
  world.ForgetCalls();
  EXPECT_EQ(host.findFile(out.data(), 260, L"a.shx", nullptr, 2), Zent::kFileNotFound);
  EXPECT_EQ(world.Count("SearchPathW"), 0);
}

TEST_F(FindFile, TheFolderOfADrawingIsItsFilesPathWithoutTheLastElement) {
  world.ForgetCalls();
  EXPECT_EQ(ZDXEngine::DatabaseFolder(&database), L"C:\\plans");
  EXPECT_THAT(Calls({"wcscpy_s", "PathRemoveFileSpecW"}),
              ElementsAre("wcscpy_s(260, C:\\plans\\site.dwg)",
                          "PathRemoveFileSpecW(C:\\plans\\site.dwg)"));
}

TEST_F(FindFile, TheFolderOfADrawingWithoutAFileIsEmpty) {
  world.drawing.originalFileName.clear();
  EXPECT_EQ(ZDXEngine::DatabaseFolder(&database), L"");
}

TEST_F(FindFile, TheFolderOfAFileWhosePathIsTooLongIsEmpty) {
  world.drawing.originalFileName = L"C:\\" + std::wstring(257, L'a');
  EXPECT_EQ(ZDXEngine::DatabaseFolder(&database), L"");
  world.drawing.originalFileName = L"C:\\plans\\" + std::wstring(250, L'a');
  EXPECT_EQ(ZDXEngine::DatabaseFolder(&database), L"C:\\plans");
}

TEST(LeafName, IsWhatFollowsTheLastBackslash) {
  EXPECT_EQ(ZDXEngine::LeafName(L"C:\\plans\\part.dwg"), L"part.dwg");
  EXPECT_EQ(ZDXEngine::LeafName(L"\\part.dwg"), L"part.dwg");
  EXPECT_EQ(ZDXEngine::LeafName(L"plans\\"), L"");
  EXPECT_EQ(ZDXEngine::LeafName(L"part.dwg"), L"part.dwg");
  EXPECT_EQ(ZDXEngine::LeafName(L"plans/part.dwg"), L"plans/part.dwg");
  EXPECT_EQ(ZDXEngine::LeafName(L"C:part.dwg"), L"C:part.dwg");
  EXPECT_EQ(ZDXEngine::LeafName(L""), L"");
}

}  // namespace

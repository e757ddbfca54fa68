// Versions as labels.
#include "references/VersionLabels.h"
#include "unit/references/ReferencesTest.h"

using references::Catch;
using references::Manager;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using ZDXEngine::VersionLabel;

namespace {

using Versions = references::ReferencesTest;

struct Labelled {
  int number;
  const wchar_t* label;
};

TEST(VersionLabels, EveryNumberHasItsLabel) {
  const Labelled rows[] = {
      {0, L"kDHL_MC0_0"},  {1, L"kDHL_AC1_2"},     {2, L"kDHL_AC1_40"},   {3, L"kDHL_AC1_50"},
      {4, L"kDHL_AC2_20"}, {5, L"kDHL_AC2_10"},    {6, L"kDHL_AC2_21"},   {7, L"kDHL_AC2_22"},
      {8, L"kDHL_1001"},   {9, L"kDHL_1002"},      {10, L"kDHL_1003"},    {11, L"kDHL_1004"},
      {12, L"kDHL_1005"},  {13, L"kDHL_1006"},     {14, L"kDHL_1007"},    {15, L"kDHL_1008"},
      {16, L"kDHL_1009"},  {17, L"kDHL_1010"},     {18, L"kDHL_1011"},    {19, L"kDHL_1012"},
      {20, L"kDHL_1013"},  {21, L"kDHL_1014"},     {22, L"kDHL_1500"},    {23, L"kDHL_1015"},
      {24, L"kDHL_1800a"}, {25, L"kDHL_1800"},     {26, L"kDHL_2100a"},   {27, L"kDHL_1021"},
      {28, L"kDHL_2400a"}, {29, L"kDHL_1024"},     {30, L"kDHL_2700a"},   {31, L"kDHL_1027"},
      {32, L"kDHL_3200a"}, {33, L"kDHL_1032"},     {34, L"kDHL_Unknown"}, {254, L"kDHL_Unknown"},
      {255, L"kDHL_Max"},  {256, L"kDHL_Unknown"}, {-1, L"kDHL_Unknown"},
  };
  for (const Labelled& row : rows) EXPECT_STREQ(VersionLabel(row.number), row.label) << row.number;
}

TEST_F(Versions, TheWrittenOneIsAskedOfNobody) {
  EXPECT_EQ(Manager().GetCurrentVersion(), L"kDHL_1032");
  EXPECT_THAT(world.Calls(), IsEmpty());
}

TEST_F(Versions, TheSavedOneIsThatOfTheLastSave) {
  world.drawing.lastSavedAsVersion = 29;
  world.drawing.originalFileVersion = 31;
  EXPECT_EQ(Manager().GetLastSavedAsFileVersion(L"C:\\a.dwg"), L"kDHL_1024");
  EXPECT_THAT(world.Calls({"ZnDbDatabase", "readDwgFile", "lastSavedAsVersion",
                           "originalFileVersion", "~ZnDbDatabase"}),
              ElementsAre("ZnDbDatabase(false, true)", "readDwgFile(C:\\a.dwg, 4, false, null)",
                          "lastSavedAsVersion()", "~ZnDbDatabase(database 1)"));
}

TEST_F(Versions, TheSavedOneIsTheFilesIfItWasNeverSaved) {
  world.drawing.originalFileVersion = 31;
  EXPECT_EQ(Manager().GetLastSavedAsFileVersion(L"C:\\a.dwg"), L"kDHL_1027");
}

TEST_F(Versions, TheSavedOneIsNotTheFilesUnlessItIsZero) {
  world.drawing.lastSavedAsVersion = -1;
  world.drawing.originalFileVersion = 31;
  EXPECT_EQ(Manager().GetLastSavedAsFileVersion(L"C:\\a.dwg"), L"kDHL_Unknown");
  EXPECT_EQ(world.Count("originalFileVersion"), 0);
}

TEST_F(Versions, TheSavedOneOfADxfFileIsToldToo) {
  world.drawing.lastSavedAsVersion = 16;
  EXPECT_EQ(Manager().GetLastSavedAsFileVersion(L"C:\\a.dxf"), L"kDHL_1009");
  EXPECT_EQ(world.Count("dxfIn"), 1);
}

TEST_F(Versions, TheSavedOneOfAFileThatDoesNotOpenThrows) {
  world.Fail("readDwgFile", 76);
  EXPECT_EQ(Catch([] { Manager().GetLastSavedAsFileVersion(L"C:\\a.dwg"); }).type,
            typeid(ZDXEngine::NotFound));
  EXPECT_EQ(Catch([] { Manager().GetLastSavedAsFileVersion(L"C:\\a.txt"); }).type,
            typeid(ZDXEngine::ReadError));
}

class FirstBytes : public Versions {
 protected:
  std::wstring VersionOf(const std::string& bytes) {
    world.files.contents[L"C:\\a.dwg"] = bytes;
    return Manager().GetTerrane3DVersion(L"C:\\a.dwg");
  }
};

TEST_F(FirstBytes, TellTheVersionOfFiveSignatures) {
  EXPECT_EQ(VersionOf("AC1015"), L"kDHL_1015");
  EXPECT_EQ(VersionOf("AC1021"), L"kDHL_1021");
  EXPECT_EQ(VersionOf("AC1024"), L"kDHL_1024");
  EXPECT_EQ(VersionOf("AC1027"), L"kDHL_1027");
  EXPECT_EQ(VersionOf("AC1032"), L"kDHL_1032");
}

TEST_F(FirstBytes, OfAnyOtherSignatureTellNoVersion) {
  for (const char* const bytes :
       {"AC1018", "AC1014", "AC1012", "AC1009", "ac1032", "AC1033", "BC1032", " AC103"}) {
    EXPECT_EQ(VersionOf(bytes), L"kDHL_Unknown") << bytes;
  }
}

TEST_F(FirstBytes, FewerThanSixTellNoVersion) {
  EXPECT_EQ(VersionOf(""), L"kDHL_Unknown");
  EXPECT_EQ(VersionOf("AC103"), L"kDHL_Unknown");
}

TEST_F(FirstBytes, WhatFollowsIsNotRead) {
  EXPECT_EQ(VersionOf("AC1032\xFFrest"), L"kDHL_1032");
  EXPECT_THAT(world.Calls(),
              ElementsAre("CreateFileW(C:\\a.dwg, 0x80000000, 3, null, 3, 0x80, null)",
                          "ReadFile(file 1, 6)", "CloseHandle(file 1)"));
}

TEST_F(FirstBytes, MayComeInPieces) {
  world.files.readSizes = {1, 3};
  EXPECT_EQ(VersionOf("AC1027"), L"kDHL_1027");
}

TEST_F(FirstBytes, OfAFileThatIsNotThereTellNoVersion) {
  EXPECT_EQ(Manager().GetTerrane3DVersion(L"C:\\missing.dwg"), L"kDHL_Unknown");
  EXPECT_THAT(world.Calls(), SizeIs(1));
}

TEST_F(FirstBytes, ThatCannotBeReadTellNoVersion) {
  world.Fail("ReadFile", 5);
  world.files.countOfFailedRead = 6;
  EXPECT_EQ(VersionOf("AC1032"), L"kDHL_Unknown");
  EXPECT_EQ(world.Count("CloseHandle"), 1);
}

TEST_F(FirstBytes, OfAFailureOnTheWayTellNoVersion) {
  for (const char* const call : {"CreateFileW", "ReadFile"}) {
    world.ForgetScripts();
    world.Throw(call);
    EXPECT_EQ(VersionOf("AC1032"), L"kDHL_Unknown") << call;
  }
}

TEST_F(FirstBytes, CountThoughTheFileDoesNotClose) {
  world.Fail("CloseHandle", 5);
  EXPECT_EQ(VersionOf("AC1032"), L"kDHL_1032");
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawing/DrawingFile.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::GetSaveClass;

namespace {

class SaveClass : public scripted::ScriptedTest {
 protected:
  int Of(int version, const std::wstring& path) {
    world.drawing.lastSavedAsVersion = version;
    return GetSaveClass(&database, &path);
  }
  int OfOwnFile(int version) {
    world.drawing.lastSavedAsVersion = version;
    return GetSaveClass(&database, nullptr);
  }

  ZnDbDatabase database{false, true};
};

TEST_F(SaveClass, VersionsFrom22OnHaveTheirClassWhateverTheTarget) {
  const std::pair<int, int> classOfVersion[] = {{33, 8}, {32, 8}, {31, 7}, {30, 7},
                                                {29, 6}, {28, 6}, {27, 5}, {26, 5},
                                                {25, 4}, {24, 4}, {23, 3}, {22, 3}};
  for (const auto& [version, saveClass] : classOfVersion) {
    for (const wchar_t* path : {L"a.dwg", L"a.dxf", L"a.txt", L""}) {
      EXPECT_EQ(Of(version, path), saveClass) << version << " " << scripted::Shown(path);
    }
  }
}

TEST_F(SaveClass, Version21IsClass2ForADrawingOfAnyExtension) {
  EXPECT_EQ(Of(21, L"a.dwg"), 2);
  EXPECT_EQ(Of(21, L"a.DWS"), 2);
  EXPECT_EQ(Of(21, L"a.dwt"), 2);
}

TEST_F(SaveClass, Version21IsClass0ForAnyOtherTarget) {
  EXPECT_EQ(Of(21, L"a.dxf"), 0);
  EXPECT_EQ(Of(21, L"a.txt"), 0);
  EXPECT_EQ(Of(21, L"a"), 0);
}

TEST_F(SaveClass, Version16IsClass1ForADxfFileAlone) {
  EXPECT_EQ(Of(16, L"a.DXF"), 1);
  EXPECT_EQ(Of(16, L"a.dxf"), 1);
  EXPECT_EQ(Of(16, L"a.dwg"), 0);
  EXPECT_EQ(Of(16, L"a.txt"), 0);
}

TEST_F(SaveClass, AllOtherVersionsAreClass0) {
  for (const int version : {-1, 1, 15, 17, 18, 19, 20, 34, 100}) {
    EXPECT_EQ(Of(version, L"a.dwg"), 0) << version;
    EXPECT_EQ(Of(version, L"a.dxf"), 0) << version;
  }
}

TEST_F(SaveClass, TheLastSaveCountsAndNotTheFileAsItWasRead) {
  world.drawing.originalFileVersion = 33;
  EXPECT_EQ(Of(23, L"a.dwg"), 3);
}

TEST_F(SaveClass, WithoutALastSaveTheFileAsItWasReadCounts) {
  world.drawing.originalFileVersion = 29;
  EXPECT_EQ(Of(0, L"a.dwg"), 6);
}

TEST_F(SaveClass, WithNoVersionAtAllItIs0) { EXPECT_EQ(Of(0, L"a.dwg"), 0); }

TEST_F(SaveClass, WithoutATargetTheDatabasesOwnNameCounts) {
  world.drawing.filename = L"C:\\own.dwt";
  EXPECT_EQ(OfOwnFile(21), 2);
  world.drawing.filename = L"C:\\own.dxf";
  EXPECT_EQ(OfOwnFile(21), 0);
  EXPECT_EQ(OfOwnFile(16), 1);
}

TEST_F(SaveClass, IsZeroIfTheOwnNameCannotBeHad) {
  world.drawing.filename = L"C:\\own.dwg";
  world.Fail("getFilename", 5);
  EXPECT_EQ(OfOwnFile(21), 0);
}

TEST_F(SaveClass, IsZeroIfTheOwnNameIsNullOrEmpty) {
  world.drawing.filename = std::nullopt;
  EXPECT_EQ(OfOwnFile(21), 0);
  world.drawing.filename = L"";
  EXPECT_EQ(OfOwnFile(21), 0);
}

TEST_F(SaveClass, AnEmptyTargetIsNotReplacedByTheOwnName) {
  world.drawing.filename = L"C:\\own.dwg";
  EXPECT_EQ(Of(21, L""), 0);
  EXPECT_THAT(world.Calls({"getFilename"}), IsEmpty());
}

TEST_F(SaveClass, TheOwnNameIsNotAskedForWhereTheVersionDecides) {
  EXPECT_EQ(OfOwnFile(22), 3);
  EXPECT_THAT(world.Calls({"getFilename"}), IsEmpty());
}

}  // namespace

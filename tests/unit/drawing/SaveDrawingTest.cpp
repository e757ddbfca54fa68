#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawing/DrawingFile.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::SaveDrawing;
using ZDXEngine::SaveDwgAs;
using ZDXEngine::SaveDxf;

namespace {

struct VersionPair {
  int from;
  int writtenAs;
};

const VersionPair kGenerations[] = {{33, 33}, {32, 33}, {31, 31}, {30, 31}, {29, 29}, {28, 29},
                                    {27, 27}, {26, 27}, {25, 25}, {24, 25}, {23, 23}, {22, 23}};

class Save : public scripted::ScriptedTest {
 protected:
  Save() { world.InstallServices(); }

  // Saves a database that came in version `version`, as the working database `database 1`.
  int To(const std::wstring& path, int version) {
    ZnDbDatabase database(false, true);
    return With(database, path, version);
  }
  int With(ZnDbDatabase& database, const std::wstring& path, int version) {
    world.drawing.lastSavedAsVersion = version;
    return SaveDrawing(&database, path);
  }
  std::vector<std::string> Writes() const { return world.Calls({"saveAs", "dxfOut"}); }
};

TEST_F(Save, ADrawingIsWrittenInItsOwnGeneration) {
  for (const auto& [from, writtenAs] : kGenerations) {
    if (writtenAs == 33) continue;
    world.ForgetCalls();
    EXPECT_EQ(To(L"a.dwg", from), 0) << from;
    EXPECT_THAT(Writes(),
                ElementsAre("saveAs(a.dwg, false, " + std::to_string(writtenAs) + ", null)"))
        << from;
  }
}

TEST_F(Save, TheNewestGenerationAloneIsWrittenWithTheFlagSet) {
  EXPECT_EQ(To(L"a.dwg", 33), 0);
  EXPECT_EQ(To(L"a.dwg", 32), 0);
  EXPECT_THAT(Writes(),
              ElementsAre("saveAs(a.dwg, true, 33, null)", "saveAs(a.dwg, true, 33, null)"));
}

TEST_F(Save, ADxfFileIsWrittenInItsOwnGenerationWithSixteenPlaces) {
  for (const auto& [from, writtenAs] : kGenerations) {
    world.ForgetCalls();
    EXPECT_EQ(To(L"a.dxf", from), 0) << from;
    EXPECT_THAT(Writes(),
                ElementsAre("dxfOut(a.dxf, 16, " + std::to_string(writtenAs) + ", false)"))
        << from;
  }
}

TEST_F(Save, Version21IsWrittenToATemplateInVersion21) {
  EXPECT_EQ(To(L"a.dwt", 21), 0);
  EXPECT_THAT(Writes(), ElementsAre("saveAs(a.dwt, false, 21, null)"));
}

TEST_F(Save, Version21IsNotWrittenToADxfFile) {
  EXPECT_EQ(To(L"a.dxf", 21), 434);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Save, Version16IsWrittenToADxfFileInVersion16) {
  EXPECT_EQ(To(L"a.dxf", 16), 0);
  EXPECT_THAT(Writes(), ElementsAre("dxfOut(a.dxf, 16, 16, false)"));
}

TEST_F(Save, Version16IsNotWrittenToADrawing) {
  EXPECT_EQ(To(L"a.dwg", 16), 434);
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Save, VersionsOutsideTheTableAreNotWritten) {
  for (const int version : {0, 1, 15, 17, 20, 34}) {
    EXPECT_EQ(To(L"a.dwg", version), 434) << version;
    EXPECT_EQ(To(L"a.dxf", version), 434) << version;
  }
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Save, AnyOtherTargetIsRefusedWithoutTouchingTheWorkingDatabase) {
  for (const wchar_t* path : {L"a.txt", L"a", L"", L".dwg"}) {
    EXPECT_EQ(To(path, 33), 434) << scripted::Shown(path);
  }
  EXPECT_THAT(world.Calls({"saveAs", "dxfOut", "workingDatabase", "setWorkingDatabase"}),
              IsEmpty());
}

TEST_F(Save, TheLibrarysStatusOfADrawingIsHandedOn) {
  world.Fail("saveAs", 77);
  EXPECT_EQ(To(L"a.dwg", 33), 77);
  EXPECT_EQ(To(L"a.dwg", 23), 77);
}

TEST_F(Save, TheLibrarysStatusOfADxfFileIsHandedOn) {
  world.Fail("dxfOut", 77);
  EXPECT_EQ(To(L"a.dxf", 33), 77);
}

TEST_F(Save, TheSaveClassOfADrawingIsTakenBeforeTheSwitch) {
  To(L"a.dwg", 33);
  EXPECT_THAT(world.Calls({"lastSavedAsVersion", "setWorkingDatabase", "saveAs"}),
              ElementsAre("lastSavedAsVersion()", "setWorkingDatabase(database 1)",
                          "saveAs(a.dwg, true, 33, null)", "setWorkingDatabase(null)"));
}

TEST_F(Save, TheSaveClassOfADxfFileIsTakenAfterTheSwitch) {
  To(L"a.dxf", 33);
  EXPECT_THAT(world.Calls({"lastSavedAsVersion", "setWorkingDatabase", "dxfOut"}),
              ElementsAre("setWorkingDatabase(database 1)", "lastSavedAsVersion()",
                          "dxfOut(a.dxf, 16, 33, false)", "setWorkingDatabase(null)"));
}

TEST_F(Save, AnOlderDrawingIsSwitchedToOnlyOnce) {
  To(L"a.dwg", 31);
  EXPECT_THAT(world.Calls({"setWorkingDatabase", "saveAs"}),
              ElementsAre("setWorkingDatabase(database 1)", "saveAs(a.dwg, false, 31, null)",
                          "setWorkingDatabase(null)"));
}

TEST_F(Save, ADrawingOfClass0IsSwitchedToAndBackThoughNothingIsWritten) {
  To(L"a.dwg", 16);
  EXPECT_THAT(world.Calls({"setWorkingDatabase", "saveAs"}),
              ElementsAre("setWorkingDatabase(database 1)", "setWorkingDatabase(null)"));
}

TEST_F(Save, SaveDwgAsWritesTheVersionOfItsClassWithTheFlagClear) {
  ZnDbDatabase database(false, true);
  const std::pair<int, int> versionOfClass[] = {{7, 31}, {6, 29}, {5, 27},
                                                {4, 25}, {3, 23}, {2, 21}};
  for (const auto& [saveClass, version] : versionOfClass) {
    world.ForgetCalls();
    EXPECT_EQ(SaveDwgAs(&database, L"a.dwg", saveClass), 0);
    EXPECT_THAT(Writes(),
                ElementsAre("saveAs(a.dwg, false, " + std::to_string(version) + ", null)"));
  }
}

TEST_F(Save, SaveDwgAsWritesNothingAndSucceedsForAnyOtherClass) {
  ZnDbDatabase database(false, true);
  for (const int saveClass : {-1, 0, 1, 8, 9}) {
    EXPECT_EQ(SaveDwgAs(&database, L"a.dwg", saveClass), 0) << saveClass;
  }
  EXPECT_THAT(Writes(), IsEmpty());
}

TEST_F(Save, SaveDwgAsSwitchesTheWorkingDatabaseThereAndBackForAnyOtherClassToo) {
  ZnDbDatabase database(false, true);
  for (const int saveClass : {-1, 0, 1, 8, 9}) {
    world.ForgetCalls();
    EXPECT_EQ(SaveDwgAs(&database, L"a.dwg", saveClass), 0) << saveClass;
    EXPECT_THAT(world.Calls({"setWorkingDatabase", "saveAs"}),
                ElementsAre("setWorkingDatabase(database 1)", "setWorkingDatabase(null)"))
        << saveClass;
  }
}

TEST_F(Save, SaveDwgAsSwitchesTheWorkingDatabaseByItself) {
  ZnDbDatabase database(false, true);
  SaveDwgAs(&database, L"a.dwg", 7);
  EXPECT_THAT(world.Calls({"setWorkingDatabase", "saveAs"}),
              ElementsAre("setWorkingDatabase(database 1)", "saveAs(a.dwg, false, 31, null)",
                          "setWorkingDatabase(null)"));
}

TEST_F(Save, SaveDxfOfClass2IsRefused) {
  world.drawing.lastSavedAsVersion = 21;
  ZnDbDatabase database(false, true);
  EXPECT_EQ(SaveDxf(&database, L"a.dwg"), 434);
  EXPECT_THAT(Writes(), IsEmpty());
}

}  // namespace

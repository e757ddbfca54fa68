#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawing/DrawingFile.h"
#include "drawing/WorkingDatabaseGuard.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::SaveDrawing;
using ZDXEngine::WorkingDatabaseGuard;

namespace {

// Two databases: `idle` (database 1) works while nothing is saved, `drawing` (database 2) is saved.
class WorkingDatabase : public scripted::ScriptedTest {
 protected:
  WorkingDatabase() {
    world.InstallServices();
    world.drawing.lastSavedAsVersion = 33;
  }
  std::vector<std::string> Switches() const { return world.Calls({"setWorkingDatabase"}); }

  ZnDbDatabase idle{true, true};
  ZnDbDatabase drawing{false, true};
};

TEST_F(WorkingDatabase, IsSwitchedForTheSaveAndBack) {
  world.library.working = &idle;
  SaveDrawing(&drawing, L"a.dwg");
  EXPECT_THAT(Switches(),
              ElementsAre("setWorkingDatabase(database 2)", "setWorkingDatabase(database 1)"));
}

TEST_F(WorkingDatabase, IsNotSetAtAllIfItIsTheOneToBeSaved) {
  world.library.working = &drawing;
  SaveDrawing(&drawing, L"a.dwg");
  SaveDrawing(&drawing, L"a.dxf");
  EXPECT_THAT(Switches(), IsEmpty());
}

TEST_F(WorkingDatabase, IsLeftAloneInAHostOfAnotherKind) {
  world.library.productCode = 3;
  world.library.working = &idle;
  EXPECT_EQ(SaveDrawing(&drawing, L"a.dwg"), 0);
  EXPECT_THAT(Switches(), IsEmpty());
  EXPECT_EQ(world.Count("saveAs"), 1);
}

TEST_F(WorkingDatabase, IsLeftAloneInAHostOfAnotherKindForADxfFileToo) {
  world.library.productCode = 3;
  world.library.working = &idle;
  EXPECT_EQ(SaveDrawing(&drawing, L"a.dxf"), 0);
  EXPECT_THAT(Switches(), IsEmpty());
  EXPECT_EQ(world.Count("dxfOut"), 1);
}

TEST_F(WorkingDatabase, IsSwitchedInAHostOfAnotherKindIfThereIsNone) {
  world.library.productCode = 3;
  world.library.working = nullptr;
  SaveDrawing(&drawing, L"a.dwg");
  EXPECT_THAT(Switches(),
              ElementsAre("setWorkingDatabase(database 2)", "setWorkingDatabase(null)"));
}

TEST_F(WorkingDatabase, NoneIsPutBackAsNone) {
  world.library.working = nullptr;
  SaveDrawing(&drawing, L"a.dwg");
  EXPECT_EQ(world.library.working, nullptr);
}

TEST_F(WorkingDatabase, IsPutBackWhenSavingADrawingThrows) {
  world.library.working = &idle;
  world.Throw("saveAs");
  EXPECT_THROW(SaveDrawing(&drawing, L"a.dwg"), scripted::Fault);
  EXPECT_EQ(world.library.working, &idle);
}

TEST_F(WorkingDatabase, IsPutBackWhenSavingAnOlderDrawingThrows) {
  world.library.working = &idle;
  world.drawing.lastSavedAsVersion = 23;
  world.Throw("saveAs");
  EXPECT_THROW(SaveDrawing(&drawing, L"a.dwg"), scripted::Fault);
  EXPECT_EQ(world.library.working, &idle);
}

TEST_F(WorkingDatabase, IsPutBackWhenSavingADxfFileThrows) {
  world.library.working = &idle;
  world.Throw("dxfOut");
  EXPECT_THROW(SaveDrawing(&drawing, L"a.dxf"), scripted::Fault);
  EXPECT_EQ(world.library.working, &idle);
}

TEST_F(WorkingDatabase, IsPutBackAfterAFailedSave) {
  world.library.working = &idle;
  world.Fail("saveAs", 77);
  SaveDrawing(&drawing, L"a.dwg");
  EXPECT_EQ(world.library.working, &idle);
}

TEST_F(WorkingDatabase, AGuardHoldsForItsScope) {
  world.library.working = &idle;
  {
    const WorkingDatabaseGuard guard(&drawing);
    EXPECT_EQ(world.library.working, &drawing);
  }
  EXPECT_EQ(world.library.working, &idle);
}

TEST_F(WorkingDatabase, AGuardWithinAGuardFindsNothingToDo) {
  world.library.working = &idle;
  const WorkingDatabaseGuard outer(&drawing);
  world.ForgetCalls();
  { const WorkingDatabaseGuard inner(&drawing); }
  EXPECT_THAT(Switches(), IsEmpty());
  EXPECT_EQ(world.library.working, &drawing);
}

}  // namespace

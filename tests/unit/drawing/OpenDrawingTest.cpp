#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "drawing/DrawingFile.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using ZDXEngine::OpenDrawing;

namespace {

class Open : public scripted::ScriptedTest {
 protected:
  // The read calls that opening `path` makes.
  std::vector<std::string> ReadsOf(const std::wstring& path, bool readOnly) {
    ZnDbDatabase database(false, true);
    OpenDrawing(path, &database, readOnly);
    return world.Calls({"readDwgFile", "dxfIn"});
  }
};

TEST_F(Open, ADrawingForReadingAloneIsReadInMode4) {
  EXPECT_THAT(ReadsOf(L"C:\\a.dwg", true), ElementsAre("readDwgFile(C:\\a.dwg, 4, false, null)"));
}

TEST_F(Open, ADrawingForWritingBackIsReadInMode3) {
  EXPECT_THAT(ReadsOf(L"C:\\a.dwg", false), ElementsAre("readDwgFile(C:\\a.dwg, 3, false, null)"));
}

TEST_F(Open, StandardsAndTemplatesAreReadAsDrawings) {
  EXPECT_THAT(ReadsOf(L"a.DWS", true), ElementsAre("readDwgFile(a.DWS, 4, false, null)"));
  world.ForgetCalls();
  EXPECT_THAT(ReadsOf(L"a.dwt", true), ElementsAre("readDwgFile(a.dwt, 4, false, null)"));
}

TEST_F(Open, CaseOfTheExtensionDoesNotMatter) {
  EXPECT_THAT(ReadsOf(L"a.Dwg", true), ElementsAre("readDwgFile(a.Dwg, 4, false, null)"));
}

TEST_F(Open, ADxfFileIsReadByDxfIn) {
  EXPECT_THAT(ReadsOf(L"a.dxf", true), ElementsAre("dxfIn(a.dxf, null)"));
}

TEST_F(Open, ADxfFileForWritingBackIsReadTheSameWay) {
  EXPECT_THAT(ReadsOf(L"a.dxf", false), ElementsAre("dxfIn(a.dxf, null)"));
}

class OpenOther : public Open, public testing::WithParamInterface<std::string> {};

TEST_P(OpenOther, ThrowsReadErrorWithoutReading) {
  ZnDbDatabase database(false, true);
  EXPECT_THROW(OpenDrawing(ZDXEngine::WideFromUtf8(GetParam()), &database, true),
               ZDXEngine::ReadError);
  EXPECT_THAT(world.Calls({"readDwgFile", "dxfIn"}), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(AnyOtherName, OpenOther,
                         testing::Values("", "a", "a.dwgx", "a.txt", ".dwg", "a.dwg\\b"));

TEST_F(Open, AFailedReadOfADrawingThrowsWithThePath) {
  world.utilities.texts[102] = L"<%1!s!>";
  world.Fail("readDwgFile", 76);
  ZnDbDatabase database(false, true);
  try {
    OpenDrawing(L"C:\\a.dwg", &database, true);
    FAIL() << "nothing was thrown";
  } catch (const ZDXEngine::NotFound& error) {
    EXPECT_EQ(error.errorMessage, L"<C:\\a.dwg>");
  }
}

TEST_F(Open, AFailedReadOfADxfFileThrowsForItsStatus) {
  world.Fail("dxfIn", 314);
  ZnDbDatabase database(false, true);
  EXPECT_THROW(OpenDrawing(L"a.dxf", &database, true), ZDXEngine::InvalidFormat);
}

TEST_F(Open, AFailedReadIsNotTriedAnotherWay) {
  world.Fail("readDwgFile", 314);
  ZnDbDatabase database(false, true);
  EXPECT_THROW(OpenDrawing(L"a.dwg", &database, true), ZDXEngine::InvalidFormat);
  EXPECT_EQ(world.Count("readDwgFile"), 1);
  EXPECT_EQ(world.Count("dxfIn"), 0);
}

}  // namespace

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawing/DrawingFile.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using ZDXEngine::GetExtension;
using ZDXEngine::IsDwgExtension;
using ZDXEngine::IsDxfExtension;

namespace {

using Extension = scripted::ScriptedTest;

TEST_F(Extension, RunsFromTheLastDotWithTheDot) {
  EXPECT_EQ(GetExtension(L"C:\\plans\\house.dwg"), L".dwg");
  EXPECT_EQ(GetExtension(L"house.old.dxf"), L".dxf");
}

TEST_F(Extension, IsEmptyWithoutADot) {
  EXPECT_EQ(GetExtension(L"house"), L"");
  EXPECT_EQ(GetExtension(L""), L"");
}

TEST_F(Extension, IsEmptyIfTheOnlyDotComesFirst) { EXPECT_EQ(GetExtension(L".dwg"), L""); }

TEST_F(Extension, ADotInSecondPlaceIsEnough) { EXPECT_EQ(GetExtension(L"a.dwg"), L".dwg"); }

TEST_F(Extension, IsTheDotAloneIfThePathEndsInOne) { EXPECT_EQ(GetExtension(L"house."), L"."); }

TEST_F(Extension, RunsFromADotInAFolderNameToTheEndOfThePath) {
  EXPECT_EQ(GetExtension(L"C:\\a.b\\c"), L".b\\c");
  EXPECT_EQ(GetExtension(L"/a.b/c"), L".b/c");
}

TEST_F(Extension, KeepsItsCase) { EXPECT_EQ(GetExtension(L"a.DwG"), L".DwG"); }

TEST_F(Extension, DwgDwsAndDwtAreDrawingsInAnyCase) {
  for (const wchar_t* extension : {L".DWG", L".dwg", L".Dwg", L".DWS", L".dws", L".DWT", L".dwt"}) {
    EXPECT_TRUE(IsDwgExtension(extension)) << scripted::Shown(extension);
  }
}

TEST_F(Extension, EverythingElseIsNoDrawing) {
  for (const wchar_t* extension : {L"", L".", L"dwg", L".dw", L".dwgx", L".dxf", L".dwg "}) {
    EXPECT_FALSE(IsDwgExtension(extension)) << scripted::Shown(extension);
  }
}

TEST_F(Extension, DrawingsAreTestedInTheirOrderIgnoringCase) {
  IsDwgExtension(L".x");
  EXPECT_THAT(world.Calls(), ElementsAre("Order(.x, .DWG, 0, 1)", "Order(.x, .DWS, 0, 1)",
                                         "Order(.x, .DWT, 0, 1)"));
}

TEST_F(Extension, TheFirstDrawingExtensionThatFitsEndsTheTest) {
  IsDwgExtension(L".dws");
  EXPECT_THAT(world.Calls(), ElementsAre("Order(.dws, .DWG, 0, 1)", "Order(.dws, .DWS, 0, 1)"));
}

TEST_F(Extension, DxfIsADxfFileInAnyCase) {
  EXPECT_TRUE(IsDxfExtension(L".DXF"));
  EXPECT_TRUE(IsDxfExtension(L".dxf"));
  EXPECT_TRUE(IsDxfExtension(L".dXf"));
}

TEST_F(Extension, EverythingElseIsNoDxfFile) {
  for (const wchar_t* extension : {L"", L".", L"dxf", L".dx", L".dxfx", L".dwg", L".dxb"}) {
    EXPECT_FALSE(IsDxfExtension(extension)) << scripted::Shown(extension);
  }
}

}  // namespace

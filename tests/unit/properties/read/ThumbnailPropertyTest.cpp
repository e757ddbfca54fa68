#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

#include "properties/read/ThumbnailProperty.h"
#include "support/Memory.h"
#include "unit/properties/read/CollectorTest.h"

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;
using ZDXEngine::CollectThumbnailProperty;

namespace {

void FillThumbnail(scripted::World& world) {
  world.drawing.filename = L"C:\\a.dwg";
  world.graphics.metafileBytes = "METAFILE";
  world.GivePreview();
}

class ThumbnailProperty : public scripted::CollectorTest {
 protected:
  ThumbnailProperty() { FillThumbnail(world); }

  void Collect() { CollectThumbnailProperty(properties, &database); }
  // The bytes of the one property.
  std::vector<int> Bytes() const {
    EXPECT_THAT(properties, SizeIs(1));
    const SAFEARRAY& array = *properties.at(0).value.parray;
    const auto* const first = static_cast<const std::uint8_t*>(array.pvData);
    return {first, first + array.rgsabound[0].cElements};
  }
  // What was called, without its arguments.
  std::vector<std::string> Operations() const {
    std::vector<std::string> calls = world.Calls();
    for (std::string& call : calls) call.resize(call.find('('));
    return calls;
  }
  std::vector<int> Head() const {
    const std::vector<int> bytes = Bytes();
    return {bytes.begin(), bytes.begin() + 12};
  }
};

TEST_F(ThumbnailProperty, IsBinaryAndKnownByItsNumberInTheSummarySet) {
  Collect();
  ASSERT_THAT(properties, SizeIs(1));
  EXPECT_EQ(properties[0].formatId, expected::kSummarySet);
  EXPECT_EQ(properties[0].name, L"17");
  EXPECT_EQ(properties[0].typeCode, 4);
  EXPECT_EQ(properties[0].value.vt, VT_ARRAY | VT_UI1);
}

TEST_F(ThumbnailProperty, IsTheMetafileBehindItsHead) {
  Collect();
  EXPECT_THAT(Bytes(), ElementsAre(3, 0, 0, 0, 8, 0, 0x64, 0, 0x32, 0, 0, 0, 'M', 'E', 'T', 'A',
                                   'F', 'I', 'L', 'E'));
}

TEST_F(ThumbnailProperty, IsAppended) {
  Collect();
  Collect();
  EXPECT_THAT(properties, SizeIs(2));
}

TEST_F(ThumbnailProperty, EveryCallComesInItsOrder) {
  world.graphics.unitsPerPixel = 2;
  world.graphics.origin = {7, 9};
  Collect();
  std::vector<std::string> calls = world.Calls();
  std::erase_if(calls, [](const std::string& call) {
    return call.starts_with("GuidToString") || call.starts_with("PropIdToString");
  });
  calls.resize(25);
  EXPECT_THAT(
      calls,
      ElementsAre("getFilename()", "zndbGetPreviewBitmapFromDwg(C:\\a.dwg, null)",
                  "CreateMetaFileW(null)", "GetDC(null)", "CreateCompatibleDC(screen)",
                  "ReleaseDC(null, screen)", "SelectObject(memory context, bitmap)",
                  "GetMapMode(metafile context)", "SetMapMode(memory context, 1)",
                  "GetObjectW(bitmap, 32)", "DPtoLP(metafile context, 100, 50, 1)",
                  "DPtoLP(memory context, 0, 0, 1)", "SelectPalette(metafile context, palette, 1)",
                  "RealizePalette(metafile context)",
                  "BitBlt(metafile context, 0, 0, 200, 100, memory context, 7, 9, 13369376)",
                  "DeleteDC(memory context)", "CloseMetaFile(metafile context)",
                  "GetMetaFileBitsEx(metafile, 0, null)", "GetMetaFileBitsEx(metafile, 8, given)",
                  "VariantInit()", "InitVariantFromBuffer(20)", "VariantInit()",
                  "VariantCopy(bytes)", "VariantInit()", "VariantCopy(bytes)"));
}

TEST_F(ThumbnailProperty, TheVariantIsClearedTwiceAndThenTheHandlesGo) {
  Collect();
  std::vector<std::string> calls = world.Calls();
  ASSERT_GE(calls.size(), 6u);
  EXPECT_THAT(
      std::vector(calls.end() - 6, calls.end()),
      ElementsAre("VariantClear(bytes)", "VariantClear(bytes)", "VariantClear(empty)",
                  "DeleteMetaFile(metafile)", "DeleteObject(bitmap)", "DeleteObject(palette)"));
}

TEST_F(ThumbnailProperty, TheMapModeIsTheMetafiles) {
  world.graphics.mapMode = 8;
  Collect();
  EXPECT_THAT(world.Calls({"SetMapMode"}), ElementsAre("SetMapMode(memory context, 8)"));
}

TEST_F(ThumbnailProperty, TheHeadHoldsTheSizeInLogicalUnits) {
  world.graphics.unitsPerPixel = 3;
  Collect();
  EXPECT_THAT(Head(), ElementsAre(3, 0, 0, 0, 8, 0, 0x2C, 0x01, 0x96, 0, 0, 0));
}

TEST_F(ThumbnailProperty, ALargeSizeIsCutToItsLow16BitsInTheHeadAlone) {
  world.graphics.width = 0x12345;
  world.graphics.height = 0x10000;
  Collect();
  EXPECT_THAT(Head(), ElementsAre(3, 0, 0, 0, 8, 0, 0x45, 0x23, 0, 0, 0, 0));
  EXPECT_THAT(world.Calls({"BitBlt"}),
              ElementsAre("BitBlt(metafile context, 0, 0, 74565, 65536, memory context, 0, 0, "
                          "13369376)"));
}

TEST_F(ThumbnailProperty, ANegativeSizeIsCutToItsLow16BitsToo) {
  world.graphics.unitsPerPixel = -1;
  Collect();
  EXPECT_THAT(Head(), ElementsAre(3, 0, 0, 0, 8, 0, 0x9C, 0xFF, 0xCE, 0xFF, 0, 0));
}

TEST_F(ThumbnailProperty, ALargeMetafileComesWhole) {
  world.graphics.metafileBytes = std::string(100000, 'x');
  Collect();
  EXPECT_THAT(world.Calls({"InitVariantFromBuffer"}), ElementsAre("InitVariantFromBuffer(100012)"));
  const std::vector<int> bytes = Bytes();
  ASSERT_THAT(bytes, SizeIs(100012));
  EXPECT_EQ(std::count(bytes.begin() + 12, bytes.end(), 'x'), 100000);
}

TEST_F(ThumbnailProperty, WithoutAFileNameThereIsNone) {
  world.Fail("getFilename", 5);
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_THAT(world.Calls(), ElementsAre("getFilename()"));
}

TEST_F(ThumbnailProperty, WithANullFileNameThereIsNone) {
  world.drawing.filename.reset();
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_THAT(world.Calls(), ElementsAre("getFilename()"));
}

TEST_F(ThumbnailProperty, WithoutAPreviewThereIsNone) {
  world.library.preview = nullptr;
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_THAT(world.Calls(),
              ElementsAre("getFilename()", "zndbGetPreviewBitmapFromDwg(C:\\a.dwg, null)"));
}

TEST_F(ThumbnailProperty, TheAnswerOfThePreviewIsNotLookedAt) {
  world.Fail("zndbGetPreviewBitmapFromDwg", 5);
  Collect();
  EXPECT_THAT(properties, SizeIs(1));
}

TEST_F(ThumbnailProperty, APreviewWithoutAPaletteIsDrawnAllTheSame) {
  world.GivePreview(false);
  Collect();
  EXPECT_THAT(properties, SizeIs(1));
  EXPECT_THAT(
      world.Calls({"SelectPalette", "RealizePalette", "DeleteObject"}),
      ElementsAre("SelectPalette(metafile context, null, 1)", "RealizePalette(metafile context)",
                  "DeleteObject(bitmap)", "DeleteObject(null)"));
}

TEST_F(ThumbnailProperty, WhatFailsWhileItIsDrawnIsNotLookedAt) {
  Collect();
  const std::vector<std::string> undisturbed = Operations();
  for (const char* call : {"GetDC", "CreateCompatibleDC", "SelectObject", "GetMapMode",
                           "SetMapMode", "GetObjectW", "DPtoLP", "BitBlt"}) {
    properties.clear();
    world.ForgetCalls();
    world.ForgetScripts();
    world.ReturnNull(call);
    Collect();
    EXPECT_THAT(properties, SizeIs(1)) << call;
    EXPECT_EQ(Operations(), undisturbed) << call;
  }
}

TEST_F(ThumbnailProperty, ABitmapThatTellsNothingHasNoSize) {
  world.ReturnNull("GetObjectW");
  Collect();
  EXPECT_THAT(Head(), ElementsAre(3, 0, 0, 0, 8, 0, 0, 0, 0, 0, 0, 0));
}

TEST_F(ThumbnailProperty, ANullMetafileGivesNoneAndEverythingIsReleased) {
  world.ReturnNull("CloseMetaFile");
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(world.Count("GetMetaFileBitsEx"), 0);
  EXPECT_EQ(world.Count("VariantInit"), 0);
  EXPECT_THAT(world.Calls({"DeleteMetaFile", "DeleteObject"}),
              ElementsAre("DeleteMetaFile(null)", "DeleteObject(bitmap)", "DeleteObject(palette)"));
}

TEST_F(ThumbnailProperty, AMetafileThatCannotBeBegunGivesNone) {
  world.ReturnNull("CreateMetaFileW");
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(world.Count("DeleteObject"), 2);
}

TEST_F(ThumbnailProperty, AMetafileWithoutBytesIsAHeadAlone) {
  world.ReturnNull("GetMetaFileBitsEx");
  Collect();
  EXPECT_THAT(Bytes(), ElementsAre(3, 0, 0, 0, 8, 0, 0x64, 0, 0x32, 0, 0, 0));
}

TEST_F(ThumbnailProperty, BytesThatDoNotComeAreZero) {
  world.ReturnNull("GetMetaFileBitsEx", 2);
  Collect();
  const std::vector<int> bytes = Bytes();
  EXPECT_THAT(std::vector(bytes.begin() + 12, bytes.end()), ElementsAreArray(std::vector(8, 0)));
}

TEST_F(ThumbnailProperty, ASizeThatNoBlockHasGivesNoneAndEverythingIsReleased) {
  world.graphics.toldSize = 0xFFFFFFF4;  // with the head 4 GiB
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(world.Count("InitVariantFromBuffer"), 0);
  EXPECT_EQ(world.Count("DeleteMetaFile"), 1);
  EXPECT_EQ(world.Count("DeleteObject"), 2);
}

TEST_F(ThumbnailProperty, ABlockThatCannotBeMadeGivesNoneAndEverythingIsReleased) {
  world.graphics.toldSize = 0xF0000000;
  const zdx_test::MemoryLimit limit(std::size_t{1} << 30);
  if (!limit.IsInForce()) GTEST_SKIP() << "no test can take the memory away here";
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_EQ(world.Count("GetMetaFileBitsEx"), 1);
  EXPECT_EQ(world.Count("DeleteMetaFile"), 1);
  EXPECT_EQ(world.Count("DeleteObject"), 2);
}

TEST_F(ThumbnailProperty, AVariantThatCannotBeMadeGivesNoneAndEverythingIsReleased) {
  world.Fail("InitVariantFromBuffer", E_OUTOFMEMORY);
  Collect();
  EXPECT_THAT(properties, IsEmpty());
  EXPECT_THAT(world.Calls({"VariantCopy", "VariantClear", "DeleteMetaFile", "DeleteObject"}),
              ElementsAre("VariantClear(empty)", "DeleteMetaFile(metafile)", "DeleteObject(bitmap)",
                          "DeleteObject(palette)"));
}

TEST_F(ThumbnailProperty, AnyAnswerOfTheVariantThatIsNotNegativeIsASuccess) {
  world.Fail("InitVariantFromBuffer", 1);
  world.Fail("VariantCopy", 1, 1);
  Collect();
  EXPECT_THAT(properties, SizeIs(1));
}

// What is told of the world when the copy number `nth` of the value fails.
std::vector<std::string> LeftoversWhenCopyFails(int nth) {
  scripted::World world;
  FillThumbnail(world);
  world.Fail("VariantCopy", E_OUTOFMEMORY, nth);
  std::vector<ZDXEngine::_PropData> properties;
  ZnDbDatabase database(false, true);
  try {
    CollectThumbnailProperty(properties, &database);
    ADD_FAILURE() << "nothing was thrown";
  } catch (const _com_error& error) {
    EXPECT_EQ(error.Error(), E_OUTOFMEMORY);
  }
  EXPECT_THAT(properties, IsEmpty());
  std::vector<std::string> leftovers = world.Leftovers();
  std::erase(leftovers, "still out: database 1");
  return leftovers;
}

TEST(ThumbnailWithoutMemory, RaisesTheComErrorAndLeavesItsHandlesAlone) {
  for (const int nth : {1, 2, 3}) {
    EXPECT_THAT(
        LeftoversWhenCopyFails(nth),
        UnorderedElementsAre("still out: bitmap", "still out: palette", "still out: metafile"))
        << nth;
  }
}

}  // namespace

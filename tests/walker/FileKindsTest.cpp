// Which files a walk lists by which bit, and as what.
#include <gtest/gtest.h>

#include <string>

#include "backends/walker/FileKinds.h"
#include "walker/MadeUpWorld.h"

namespace walker_test {
namespace {

using zdx::model::FileUse;
using zdx::walker::IsListed;
using zdx::walker::KindOf;

struct Row {
  FileUse use;
  int type;
  ZnDwgDepends::DwgDependsSettings bit;
};

constexpr Row kRows[] = {
    {FileUse::kAttachedDrawing, 0, 0x1},
    {FileUse::kOverlaidDrawing, 1, 0x1},
    {FileUse::kImage, 2, 0x4},
    {FileUse::kTexture, 2, 0x4},
    {FileUse::kPdfUnderlay, 7, 0x8},
    {FileUse::kDwfUnderlay, 8, 0x8},
    {FileUse::kDgnUnderlay, 8, 0x8},
    {FileUse::kPointCloud, 12, 0x200},
    {FileUse::kLinkedData, 14, 0x800},
    {FileUse::kFont, 9, 0x80},
    {FileUse::kBigFont, 9, 0x80},
    {FileUse::kShapeFile, 9, 0x80},
    {FileUse::kPlotStyleTable, 3, 0x100},
    {FileUse::kPrinter, 4, 0x100},
    {FileUse::kStyleSheet, 5, 0x100},
    {FileUse::kMenu, 6, 0x40},
    {FileUse::kListed, 10, 0x20},
};

class FileKindsTest : public testing::TestWithParam<Row> {};

TEST_P(FileKindsTest, ItsTypeIsTheLibrarys) {
  EXPECT_EQ(KindOf(GetParam().use).type, GetParam().type);
}

TEST_P(FileKindsTest, ItIsListedByItsBitAlone) {
  const auto reference = Reference(GetParam().use, L"file.pc3");
  EXPECT_TRUE(IsListed(reference, GetParam().bit));
  EXPECT_FALSE(IsListed(reference, ~GetParam().bit));
}

TEST_P(FileKindsTest, TheEngineAlwaysAsksForAllButMenusAndTheDrawingsOwnList) {
  const bool isOptional = GetParam().use == FileUse::kMenu || GetParam().use == FileUse::kListed;
  EXPECT_EQ(IsListed(Reference(GetParam().use, L"file.pc3"), kAlways), !isOptional);
}

INSTANTIATE_TEST_SUITE_P(Uses, FileKindsTest, testing::ValuesIn(kRows), [](const auto& info) {
  return "Use" + std::to_string(static_cast<int>(info.param.use));
});

TEST(FileKinds, OfPrintersOnlyConfigurationFilesAreListed) {
  EXPECT_TRUE(IsListed(Reference(FileUse::kPrinter, L"Plotter.PC3"), kAlways));
  for (const wchar_t* const name : {L"none_device", L"Office printer", L"pc3", L"a.pc3.bak"}) {
    EXPECT_FALSE(IsListed(Reference(FileUse::kPrinter, name), kAlways)) << name;
  }
}

TEST(FileKinds, APointMeansNoMenu) {
  EXPECT_FALSE(IsListed(Reference(FileUse::kMenu, L"."), kAlways | 0x40));
  EXPECT_TRUE(IsListed(Reference(FileUse::kMenu, L"plant"), kAlways | 0x40));
}

TEST(FileKinds, WhatManyRecordsNameAloneIsShared) {
  for (const FileUse use : {FileUse::kFont, FileUse::kBigFont, FileUse::kShapeFile,
                            FileUse::kPlotStyleTable, FileUse::kPrinter}) {
    EXPECT_TRUE(KindOf(use).isShared) << static_cast<int>(use);
  }
  for (const FileUse use : {FileUse::kAttachedDrawing, FileUse::kOverlaidDrawing, FileUse::kImage,
                            FileUse::kPdfUnderlay, FileUse::kDwfUnderlay, FileUse::kDgnUnderlay,
                            FileUse::kPointCloud, FileUse::kLinkedData, FileUse::kTexture}) {
    EXPECT_FALSE(KindOf(use).isShared) << static_cast<int>(use);
  }
}

}  // namespace
}  // namespace walker_test

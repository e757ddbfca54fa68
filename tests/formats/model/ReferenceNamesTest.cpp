// Names and paths of references.
#include <gtest/gtest.h>

#include "backends/database/model/ReferenceNames.h"

namespace zdx::model {
namespace {

TEST(ReferenceNames, ABarTellsThatARecordCameWithAnotherDrawing) {
  EXPECT_TRUE(IsDependentName(L"Site|Walls"));
  EXPECT_FALSE(IsDependentName(L"Walls"));
}

TEST(ReferenceNames, TheLeafStandsBehindTheLastSeparatorOfEitherSystem) {
  EXPECT_EQ(LeafOf(L"a/b\\c.dwg"), L"c.dwg");
  EXPECT_EQ(LeafOf(L"a\\b/c.dwg"), L"c.dwg");
  EXPECT_EQ(LeafOf(L"c.dwg"), L"c.dwg");
  EXPECT_EQ(LeafOf(L"a/"), L"");
}

TEST(ReferenceNames, AConnectionBeginsWithAFile) {
  EXPECT_EQ(FileOfConnection(L"C:\\data\\rates.xlsx!Sheet1!A1:B2"), L"C:\\data\\rates.xlsx");
  EXPECT_EQ(FileOfConnection(L"rates.xlsx"), L"rates.xlsx");
  EXPECT_EQ(FileOfConnection(L""), L"");
}

TEST(ReferenceNames, AnExclamationMarkBeforeTheExtensionBelongsToTheFile) {
  EXPECT_EQ(FileOfConnection(L"new!/2.old/wow!.xlsx!Sheet"), L"new!/2.old/wow!.xlsx");
  EXPECT_EQ(FileOfConnection(L"..\\wow!.xlsx!Sheet"), L"..\\wow!.xlsx");
}

TEST(ReferenceNames, AFileHasAShortPlainExtension) {
  EXPECT_TRUE(HasExtension(L"oak.jpg"));
  EXPECT_TRUE(HasExtension(L"a.b/Oak. Dark.JPEG2"));
  for (const wchar_t* const text :
       {L"", L"oak", L".jpg", L"oak.", L"a.b/oak", L"Oak. Dark", L"3.5 inches", L"oak.jpeg2k"}) {
    EXPECT_FALSE(HasExtension(text)) << text;
  }
}

}  // namespace
}  // namespace zdx::model

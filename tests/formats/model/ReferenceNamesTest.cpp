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

#include <gtest/gtest.h>

#include "Messages.h"

namespace zdx {

namespace {

using ZDXEngine::DiagnosticPlace;

TEST(PlaceText, OfAnUnknownPlaceIsEmpty) { EXPECT_EQ(PlaceText({}), ""); }

TEST(PlaceText, NamesWhatIsKnown) {
  EXPECT_EQ(PlaceText({std::nullopt, 12, std::nullopt}), "line 12");
  EXPECT_EQ(PlaceText({96, std::nullopt, 0x1F}), "offset 96, handle 1F");
}

TEST(HandleText, IsUpperCaseHexadecimalWithoutLeadingZeros) {
  EXPECT_EQ(HandleText(0), "0");
  EXPECT_EQ(HandleText(0xABCDEF), "ABCDEF");
  EXPECT_EQ(HandleText(~0ull), "FFFFFFFFFFFFFFFF");
}

TEST(WarningsLeftOut, AreThoseThatWereCountedButNotKept) {
  ZDXEngine::Diagnostics diagnostics;
  diagnostics.warnings.resize(100);
  diagnostics.warningCount = 100;
  EXPECT_EQ(WarningsLeftOut(diagnostics), 0u);
  diagnostics.warningCount = 103;
  EXPECT_EQ(WarningsLeftOut(diagnostics), 3u);
}

TEST(Complaints, NameFilePlaceSentenceAndReason) {
  Failure failure;
  failure.message = "'a.dxf' is not a valid drawing";
  failure.reason = "no section\nbegins here";
  failure.place.line = 12;
  testing::internal::CaptureStderr();
  ComplainAboutFailure(L"a.dxf", failure);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "zdx: a.dxf: line 12: 'a.dxf' is not a valid drawing (no section\\x0abegins here)\n");
}

TEST(Complaints, AboutWarningsTellHowManyAreMissing) {
  ZDXEngine::Diagnostics diagnostics;
  diagnostics.path = L"a.dxf";
  diagnostics.warnings = {{L"odd", {std::nullopt, 3, 0x2A}}};
  diagnostics.warningCount = 5;
  testing::internal::CaptureStderr();
  ComplainAboutWarnings(diagnostics);
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "zdx: a.dxf: line 3, handle 2A: warning: odd\n"
            "zdx: a.dxf: warning: 4 more like these\n");
}

}  // namespace

}  // namespace zdx

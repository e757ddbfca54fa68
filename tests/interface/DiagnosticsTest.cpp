// What is told of the last opening.
#include <gtest/gtest.h>

#include "ZDXEngine/Diagnostics.h"
#include "ZDXEngine/ZdxEngineException.h"
#include "support/PublicRead.h"
#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace {

using ZDXEngine::Diagnostics;

std::wstring Plan() { return zdx_test::WriteFile(dxf::Make(drawing::DrawingSpec())); }

TEST(LastOpening, TellsFormatVersionAndCodePage) {
  const std::wstring path = Plan();
  const Diagnostics diagnostics = zdx_test::ReadFile(path).diagnostics;
  EXPECT_EQ(diagnostics.path, path);
  EXPECT_EQ(diagnostics.format, L"DXF (text)");
  EXPECT_EQ(diagnostics.version, L"AC1032");
  EXPECT_EQ(diagnostics.codePage, L"ANSI_1252");
}

TEST(LastOpening, TellsTheSameOfADwgDrawing) {
  drawing::DrawingSpec spec;
  spec.version = "AC1018";
  spec.codePage = "ANSI_1251";
  const Diagnostics diagnostics = zdx_test::ReadBytes(dwg::Make(spec), ".dwg").diagnostics;
  EXPECT_EQ(diagnostics.format, L"DWG");
  EXPECT_EQ(diagnostics.version, L"AC1018");
  EXPECT_EQ(diagnostics.codePage, L"ANSI_1251");
}

TEST(LastOpening, IsThatOfAFailureToo) {
  zdx_test::ReadFile(Plan());
  const std::wstring path = zdx_test::WriteFile("999\nno drawing\n  1\nx\n");
  EXPECT_THROW(zdx_test::ReadFile(path), ZDXEngine::InvalidFormat);
  const Diagnostics diagnostics = Diagnostics::LastOpening();
  EXPECT_EQ(diagnostics.path, path);
  EXPECT_EQ(diagnostics.format, L"");
  ASSERT_EQ(diagnostics.errors.size(), 1u);
  EXPECT_EQ(diagnostics.errors[0].place.line, 3u);
}

TEST(LastOpening, IsACopyThatLaterOpeningsDoNotChange) {
  const std::wstring first = Plan();
  zdx_test::ReadFile(first);
  const Diagnostics diagnostics = Diagnostics::LastOpening();
  zdx_test::ReadFile(Plan());
  EXPECT_EQ(diagnostics.path, first);
}

TEST(LastOpening, OfADrawingThatTellsNoCodePageHasNone) {
  drawing::DrawingSpec spec;
  spec.version = "AC1009";
  spec.statesCodePage = false;
  EXPECT_EQ(zdx_test::ReadBytes(dxf::Make(spec)).diagnostics.codePage, L"");
}

}  // namespace

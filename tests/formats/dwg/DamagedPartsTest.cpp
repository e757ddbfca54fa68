// Damage that a copy, or what is left, makes up for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/LittleEndian.h"
#include "formats/dwg/LayersOf.h"
#include "support/dwg/Bytes.h"
#include "support/dwg/DwgMaker.h"

namespace {

using testing::UnorderedElementsAre;

std::string Sound(const char* version) {
  drawing::DrawingSpec spec;
  spec.version = version;
  spec.layers = {"0", "WALLS"};
  return dwg::Make(spec);
}

class DamagedHead : public testing::TestWithParam<const char*> {};

TEST_P(DamagedHead, TheSecondHeadTellsWhereTheSectionsAre) {
  std::string bytes = Sound(GetParam());
  constexpr std::size_t kFirstLocatorAt = 25;
  dwg::PutNumber(bytes, kFirstLocatorAt + 1, 0xFFFFFF, 4);
  const Told told = LayersOf(bytes);
  EXPECT_THAT(told.names, UnorderedElementsAre(L"0", L"WALLS"));
  EXPECT_EQ(told.warnings, 1u);
}

TEST_P(DamagedHead, TheSecondHeadIsUsedWhereTheListCannotBeOne) {
  std::string bytes = Sound(GetParam());
  constexpr std::size_t kLocatorCountAt = 21;
  dwg::PutNumber(bytes, kLocatorCountAt, 0xFFFFFF, 4);
  EXPECT_THAT(LayersOf(bytes).names, UnorderedElementsAre(L"0", L"WALLS"));
}

TEST_P(DamagedHead, ASoundHeadNeedsNoCopy) { EXPECT_EQ(LayersOf(Sound(GetParam())).warnings, 0u); }

INSTANTIATE_TEST_SUITE_P(Versions, DamagedHead, testing::Values("AC1014", "AC1015"));

TEST(DamagedParts, HeaderVariablesOfAWrongSizeAreReadAllTheSame) {
  std::string bytes = Sound("AC1015");
  const std::size_t mark = bytes.find("\xCF\x7B\x1F\x23\xFD\xDE\x38\xA9");
  ASSERT_NE(mark, std::string::npos);
  dwg::PutNumber(bytes, mark + 16, 0x7FFFFFFF, 4);
  const Told told = LayersOf(bytes);
  EXPECT_THAT(told.names, UnorderedElementsAre(L"0", L"WALLS"));
  EXPECT_GE(told.warnings, 1u);
}

// The eight words of a page's head are masked by the page's address.
TEST(DamagedParts, TheSectionMapTellsTheStoredSizeThatAPageTellsWrongly) {
  constexpr std::uint32_t kMask = 0x4164536B;
  constexpr std::uint32_t kPageType = 0x4163043B;
  std::string bytes = Sound("AC1018");
  int pages = 0;
  for (std::size_t at = 0x100; at + 0x20 < bytes.size(); at += 0x20) {
    const std::uint32_t mask = kMask ^ static_cast<std::uint32_t>(at);
    if ((zdx::LittleEndianAt<std::uint32_t>(bytes, at) ^ mask) != kPageType) continue;
    const std::uint32_t stored = zdx::LittleEndianAt<std::uint32_t>(bytes, at + 8) ^ mask;
    dwg::PutNumber(bytes, at + 8, (stored / 2) ^ mask, 4);
    ++pages;
  }
  ASSERT_GT(pages, 3);
  const Told told = LayersOf(bytes);
  EXPECT_THAT(told.names, UnorderedElementsAre(L"0", L"WALLS"));
  EXPECT_GE(told.warnings, 1u);
}

}  // namespace

// Damaged binary files: what is unreadable costs only itself, and the warning tells the offset.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "malformed/Damage.h"
#include "support/PublicRead.h"

namespace {

using namespace std::string_literals;
using damage::Replaced;
using damage::SoundBinary;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;
using zdx_test::ReadBytes;
using zdx_test::Reading;

TEST(DamagedBinary, ACodeOfUnknownKindCostsItsRecordAlone) {
  const std::string bytes =
      Replaced(SoundBinary("AC1015"), "\x02\x00Second\0"s, "\x50\x00Second\0"s);
  const Reading reading = ReadBytes(bytes);
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Third"));
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre("Pair"));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedBinary, AWarningTellsTheOffset) {
  const std::string bytes =
      Replaced(SoundBinary("AC1015"), "\x02\x00Second\0"s, "\x50\x00Second\0"s);
  const Reading reading = ReadBytes(bytes);
  ASSERT_FALSE(reading.diagnostics.warnings.empty());
  EXPECT_TRUE(reading.diagnostics.warnings[0].place.offset);
  EXPECT_FALSE(reading.diagnostics.warnings[0].place.line);
}

TEST(DamagedBinary, ATextWithoutItsEndEndsTheFile) {
  std::string bytes = SoundBinary("AC1015");
  bytes.resize(bytes.find("Second") + 3);
  EXPECT_THAT(ReadBytes(bytes).Texts(L"Layer Name"), ElementsAre("0", "First"));
}

TEST(DamagedBinary, ALengthOfFourGigabytesAllocatesNothing) {
  drawing::DrawingSpec spec = damage::Sound("AC1015");
  spec.previews = {{drawing::PreviewKind::Bitmap, std::string(100, 'x')}};
  const std::string bytes = Replaced(dxf::Make(spec, {.form = dxf::Form::Binary}),
                                     "\x5A\x00\x64\x00\x00\x00"s, "\x5A\x00\xFF\xFF\xFF\xFF"s);
  EXPECT_THAT(ReadBytes(bytes).Texts(L"Group Name"), ElementsAre("Pair"));
}

TEST(DamagedBinary, ATextOfMegabytesIsReadWhole) {
  drawing::DrawingSpec spec = damage::Sound("AC1015");
  spec.settings.menu = std::string(3 << 20, 'm');
  EXPECT_EQ(ReadBytes(dxf::Make(spec, {.form = dxf::Form::Binary})).Texts(L"Menu").at(0).size(),
            std::size_t{3} << 20);
}

TEST(DamagedBinary, ASectionWithoutItsEndIsReadAndToldOf) {
  std::string bytes = SoundBinary("AC1015");
  bytes.resize(bytes.rfind("\0\0ENDSEC"s));
  const Reading reading = ReadBytes(bytes);
  EXPECT_THAT(reading.Texts(L"Group Name"), ElementsAre("Pair"));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedBinary, DamageInTheHeaderLeavesTheTables) {
  const std::string bytes = Replaced(SoundBinary("AC1015"), "\x09\x00$MENU\0"s, "\x50\x00$MENU\0"s);
  const Reading reading = ReadBytes(bytes);
  EXPECT_THAT(reading.Texts(L"Layer Name"), ElementsAre("0", "First", "Second", "Third"));
  EXPECT_THAT(reading.Texts(L"StyleSheet"), ElementsAre(""));
  EXPECT_GE(reading.diagnostics.warningCount, 1u);
}

TEST(DamagedBinary, DamageInTheHeaderCostsItsVariableAlone) {
  const std::string bytes = Replaced(SoundBinary(), "\x01\x00Sound\0"s, "\x50\x00Sound\0"s);
  const Reading reading = ReadBytes(bytes);
  EXPECT_THAT(reading.Texts(zdx_test::kSummary, L"2"), ElementsAre());
  EXPECT_THAT(reading.Texts(L"Menu"), ElementsAre("."));
  EXPECT_THAT(reading.Custom(), ElementsAre(testing::Pair("Key", "Value")));
}

}  // namespace

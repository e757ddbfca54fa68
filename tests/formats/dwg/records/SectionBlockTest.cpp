#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/records/SectionBlock.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Bits;
using handmade::Low16;
using handmade::Low32;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t kBlockPlace = 0x700;
const std::string kBlockMark(16, 'M');

constexpr Format kPlain = {model::kVersion1018, 6};
constexpr Format kWithPlace = {model::kVersion1021, 20};
constexpr Format kShortSize = {model::kVersion1024, 3};
constexpr Format kLongSize = {model::kVersion1024, 4};
constexpr Format kAlwaysLong = {model::kVersion1032, 0};

// Mark, size, fields, check, inverted mark.
std::string FramedBlock(const std::string& fields, bool hasLongSize) {
  std::string bytes = kBlockMark + Low32(fields.size()) + (hasLongSize ? Low32(0) : "") + fields;
  bytes += Low16(handmade::SlowCrc16(bytes.substr(16)));
  return bytes + std::string(16, static_cast<char>(~'M'));
}

// The place of the handles, counted from its own begin, before the data; no texts.
std::string FieldsWithPlace() {
  const Bits data = Bits().RC(0x42).B(false);
  Bits all;
  all.RL(static_cast<std::uint32_t>(32 + data.size())).Append(data).H(5, 0x1F);
  return all.Bytes();
}

class SectionBlockTest : public testing::Test {
 protected:
  SectionBlock& Read(const std::string& bytes, Format format) {
    section.emplace(bytes, kBlockPlace);
    return block.emplace(*section, format, kBlockMark, L"things", report);
  }

  model::Report report;
  std::optional<PlainSection> section;
  std::optional<SectionBlock> block;
};

TEST_F(SectionBlockTest, BelowAC1021AllFieldsStandInOneRun) {
  Streams* const streams =
      Read(FramedBlock(Bits().RC(7).T("x").H(5, 9).Bytes(), false), kPlain).Fields();
  ASSERT_NE(streams, nullptr);
  EXPECT_EQ(streams->Data().RC(), 7);
  EXPECT_EQ(streams->Text(), "x");
  EXPECT_EQ(streams->Handle().value, 9u);
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(SectionBlockTest, FromAC1021TheFieldsBeginWithThePlaceOfTheHandles) {
  for (const Format format : {kWithPlace, kShortSize}) {
    Streams* const streams = Read(FramedBlock(FieldsWithPlace(), false), format).Fields();
    ASSERT_NE(streams, nullptr);
    EXPECT_EQ(streams->Data().RC(), 0x42);
    EXPECT_EQ(streams->Handle().value, 0x1Fu);
    EXPECT_TRUE(streams->Good());
  }
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(SectionBlockTest, LaterReleasesHaveASizeOfEightBytes) {
  for (const Format format : {kLongSize, kAlwaysLong}) {
    Streams* const streams = Read(FramedBlock(FieldsWithPlace(), true), format).Fields();
    ASSERT_NE(streams, nullptr);
    EXPECT_EQ(streams->Data().RC(), 0x42);
    EXPECT_EQ(streams->Handle().value, 0x1Fu);
  }
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(SectionBlockTest, AWrongCheckOrMarkIsToldAndTheFieldsRead) {
  const std::string bytes = FramedBlock("abc", false);
  EXPECT_EQ(Read(handmade::Damaged(bytes, 16 + 4 + 3), kPlain).Fields()->Data().RC(), 'a');
  EXPECT_THAT(TextsOf(report), ElementsAre(L"The checksum of the things is wrong."));
  EXPECT_EQ(report.warnings[0].offset, kBlockPlace);
  report = {};
  EXPECT_EQ(Read(handmade::Damaged(bytes, 3), kPlain).Fields()->Data().RC(), 'a');
  EXPECT_THAT(TextsOf(report), ElementsAre(L"The mark before the things is wrong."));
}

TEST_F(SectionBlockTest, CutWithinItsHeadHasNoFields) {
  const std::string bytes = FramedBlock("abc", false);
  for (std::size_t size = 0; size < 16 + 4 + 2; ++size) {
    report = {};
    EXPECT_EQ(Read(bytes.substr(0, size), kPlain).Fields(), nullptr) << size;
    EXPECT_EQ(TextsOf(report).size(), 1u);
  }
}

TEST_F(SectionBlockTest, ASizeThatCanNotBeRightIsToldAndTheFieldsRead) {
  std::string bytes = FramedBlock("abc", false);
  bytes.replace(16, 4, Low32(0xFFFFFFFF));
  Streams* const streams = Read(bytes, kPlain).Fields();
  ASSERT_NE(streams, nullptr);
  EXPECT_EQ(streams->Data().RC(), 'a');
  EXPECT_THAT(TextsOf(report), testing::Contains(L"The size of the things is wrong."));
}

TEST_F(SectionBlockTest, WithoutRoomForThePlaceOfTheHandlesItHasNoFields) {
  EXPECT_EQ(Read(FramedBlock("abc", false), kWithPlace).Fields(), nullptr);
}

TEST_F(SectionBlockTest, HandlesBehindTheEndAreBad) {
  Streams* const streams = Read(FramedBlock(Low32(0xFFFFFFFF) + "abc", false), kWithPlace).Fields();
  ASSERT_NE(streams, nullptr);
  streams->Handle();
  EXPECT_FALSE(streams->Good());
}

}  // namespace
}  // namespace zdx::dwg

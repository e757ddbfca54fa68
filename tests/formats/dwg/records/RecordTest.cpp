#include <gtest/gtest.h>

#include "backends/database/dwg/records/Record.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Bits;
using handmade::Low16;

constexpr Format k1014 = {model::kVersion1014, 0};
constexpr Format k1015 = {model::kVersion1015, 0};
constexpr Format k1024 = {model::kVersion1024, 0};

// Size, contents, check; from AC1024 on the size of the handles behind the size.
std::string FramedRecord(const Bits& contents, const std::string& handleSize = "") {
  const std::string body = contents.Bytes();
  const std::string bytes = Low16(body.size()) + handleSize + body;
  return bytes + Low16(handmade::SlowCrc16(bytes));
}

// A record's parts: what stands before the fields, the fields and the handles.
struct Parts {
  Bits extended = Bits().BS(0);
  Bits picture;
  Bits fields = Bits().RC(0x42);
  Bits handles = Bits().H(5, 0x1F);
};

std::string Make(Format format, unsigned type, const Parts& parts) {
  Bits rest = parts.extended;
  rest.Append(parts.picture);
  Bits before;
  if (format.version >= model::kVersion1024) {
    before.Plain("00").RC(type).H(0, 0x2A).Append(rest).Append(parts.fields);
    const std::size_t bits = before.size() + parts.handles.size();
    const std::size_t filler = (8 - bits % 8) % 8;
    const std::string handleSize(1, static_cast<char>(parts.handles.size() + filler));
    return FramedRecord(before.Append(parts.handles), handleSize);
  }
  before.BS(type);
  // Where the handles begin.
  if (format.version == model::kVersion1015) {
    const std::size_t at = before.size() + 32 + 16 + rest.size() + parts.fields.size();
    before.RL(static_cast<std::uint32_t>(at)).H(0, 0x2A).Append(rest);
  } else {
    const std::size_t at = before.size() + 16 + rest.size() + 32 + parts.fields.size();
    before.H(0, 0x2A).Append(rest).RL(static_cast<std::uint32_t>(at));
  }
  return FramedRecord(before.Append(parts.fields).Append(parts.handles));
}

void ExpectFields(Record& record, bool isEntity) {
  ASSERT_TRUE(record.Whole());
  EXPECT_TRUE(record.CheckIsRight());
  EXPECT_EQ(record.type(), 51u);
  EXPECT_EQ(record.handle(), 0x2Au);
  auto streams = record.Fields(isEntity);
  ASSERT_TRUE(streams);
  EXPECT_EQ(streams->Data().RC(), 0x42);
  EXPECT_EQ(streams->Handle().value, 0x1Fu);
  EXPECT_TRUE(streams->Good());
}

// In AC1024 fields end with the bit that says whether there are texts.
Parts PartsOf(Format format) {
  Parts parts;
  if (format.HasStringStream()) parts.fields.B(false);
  return parts;
}

TEST(Record, EveryVersionHasItsOwnHead) {
  for (const Format format : {k1014, k1015, k1024}) {
    SCOPED_TRACE(format.version);
    PlainSection section("xyz" + Make(format, 51, PartsOf(format)));
    Record record(section, 3, format);
    ExpectFields(record, false);
  }
}

TEST(Record, ExtendedDataAreSkippedWhateverTheirNumber) {
  for (const Format format : {k1014, k1015, k1024}) {
    SCOPED_TRACE(format.version);
    Parts parts = PartsOf(format);
    parts.extended =
        Bits().BS(3).H(5, 0x12).Raw("abc").BS(300).H(5, 0x1234).Raw(handmade::Noise(300)).BS(0);
    PlainSection section(Make(format, 51, parts));
    Record record(section, 0, format);
    ExpectFields(record, false);
  }
}

TEST(Record, ExtendedDataAreTold) {
  for (const Format format : {k1014, k1015, k1024}) {
    SCOPED_TRACE(format.version);
    Parts parts = PartsOf(format);
    parts.extended =
        Bits().BS(3).H(5, 0x12).Raw("abc").BS(300).H(5, 0x1234).Raw(handmade::Noise(300)).BS(0);
    PlainSection section(Make(format, 51, parts));
    const auto data = Record(section, 0, format).ExtendedData();
    ASSERT_EQ(data.size(), 2u);
    EXPECT_EQ(data[0].first.value, 0x12u);
    EXPECT_EQ(data[0].second, "abc");
    EXPECT_EQ(data[1].first.value, 0x1234u);
    EXPECT_EQ(data[1].second, handmade::Noise(300));
  }
}

TEST(Record, OfExtendedDataThatRunOverTheRecordThoseBeforeAreTold) {
  Parts parts;
  parts.extended = Bits().BS(3).H(5, 0x12).Raw("abc").BS(60000).H(5, 0x13);
  PlainSection section(Make(k1015, 51, parts));
  EXPECT_EQ(Record(section, 0, k1015).ExtendedData().size(), 1u);
}

TEST(Record, TheHeadTellsTypeAndHandleAlone) {
  for (const Format format : {k1014, k1015, k1024}) {
    SCOPED_TRACE(format.version);
    PlainSection section(Make(format, 51, PartsOf(format)));
    Record record(section, 0, format, Record::Extent::kHead);
    ASSERT_TRUE(record.Whole());
    EXPECT_EQ(record.type(), 51u);
    EXPECT_EQ(record.handle(), 0x2Au);
    EXPECT_EQ(record.Fields(false), std::nullopt);
  }
}

TEST(Record, AnEntityMayHaveAPictureBeforeItsFields) {
  for (const Format format : {k1014, k1015, k1024}) {
    SCOPED_TRACE(format.version);
    Parts parts = PartsOf(format);
    parts.picture = Bits().B(false);
    PlainSection none(Make(format, 51, parts));
    Record without(none, 0, format);
    ExpectFields(without, true);

    parts.picture = Bits().B(true);
    format.version >= model::kVersion1024 ? parts.picture.Number(1, 3).RC(5) : parts.picture.RL(5);
    parts.picture.Raw("image");
    PlainSection some(Make(format, 51, parts));
    Record with(some, 0, format);
    ExpectFields(with, true);
  }
}

TEST(Record, AWrongCheckIsKnownAndTheRecordWhole) {
  const std::string bytes = Make(k1015, 51, {});
  PlainSection section(handmade::Damaged(bytes, bytes.size() - 1));
  Record record(section, 0, k1015);
  EXPECT_TRUE(record.Whole());
  EXPECT_FALSE(record.CheckIsRight());
}

TEST(Record, ARecordThatIsCutIsNotWhole) {
  for (const Format format : {k1014, k1015, k1024}) {
    const std::string bytes = Make(format, 51, PartsOf(format));
    for (std::size_t size = 0; size < bytes.size(); ++size) {
      PlainSection section(bytes.substr(0, size));
      EXPECT_FALSE(Record(section, 0, format).Whole()) << size;
    }
  }
}

TEST(Record, BehindTheEndThereIsNone) {
  PlainSection section(Make(k1015, 51, {}));
  EXPECT_FALSE(Record(section, section.size(), k1015).Whole());
  EXPECT_FALSE(Record(section, ~std::uint64_t{0}, k1015).Whole());
}

TEST(Record, ASizeOfHundredsOfMegabytesIsNotWhole) {
  PlainSection section("\xFF\xFF\xFF\x7F" + handmade::Noise(100));
  EXPECT_FALSE(Record(section, 0, k1015).Whole());
}

TEST(Record, HandlesThatBeginBehindTheRecordAreNotWhole) {
  std::string bytes = FramedRecord(Bits().BS(51).RL(0xFFFFFFFF).H(0, 0x2A).BS(0).RC(1));
  PlainSection section(bytes);
  EXPECT_FALSE(Record(section, 0, k1015).Whole());
  bytes = FramedRecord(Bits().Plain("00").RC(51).H(0, 0x2A).BS(0).RC(1), "\x7F");
  PlainSection newer(bytes);
  EXPECT_FALSE(Record(newer, 0, k1024).Whole());
}

TEST(Record, HandlesThatBeginBeforeTheFieldsLeaveNoFields) {
  PlainSection section(FramedRecord(Bits().BS(51).RL(10).H(0, 0x2A).BS(0).RC(1)));
  Record record(section, 0, k1015);
  EXPECT_EQ(record.Fields(false), std::nullopt);
}

TEST(Record, ExtendedDataThatRunOverTheRecordLeaveNoFields) {
  Parts parts;
  parts.extended = Bits().BS(60000).H(5, 0x12);
  PlainSection section(Make(k1015, 51, parts));
  Record record(section, 0, k1015);
  EXPECT_TRUE(record.Whole());
  EXPECT_EQ(record.Fields(false), std::nullopt);
}

TEST(Record, APictureThatRunsOverTheRecordLeavesNoFields) {
  Parts parts;
  parts.picture = Bits().B(true).RL(0xFFFFFFFF);
  PlainSection section(Make(k1015, 51, parts));
  Record record(section, 0, k1015);
  EXPECT_EQ(record.Fields(true), std::nullopt);

  Parts newer = PartsOf(k1024);
  // A size of which the bits would wrap.
  newer.picture = Bits().B(true).Number(7, 3).Raw("\x01\x00\x00\x00\x00\x00\xFF").Raw("x");
  PlainSection newerSection(Make(k1024, 51, newer));
  Record newerRecord(newerSection, 0, k1024);
  EXPECT_EQ(newerRecord.Fields(true), std::nullopt);
}

}  // namespace
}  // namespace zdx::dwg

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "backends/database/dxf/TagStream.h"
#include "support/dxf/Tokens.h"

namespace zdx::dxf {
namespace {

using Outcome = TagStream::Outcome;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::Pair;

const std::string kBinaryStart(::dxf::kBinarySentinel);

// The codes and values of the object's tags.
std::vector<std::pair<int, std::string>> TagsOf(const TagStream& stream, std::size_t body,
                                                std::size_t* damagedAt = nullptr) {
  std::vector<std::pair<int, std::string>> tags;
  ObjectTags reader(stream, body);
  Tag tag;
  while (reader.Next(tag)) tags.emplace_back(tag.code, std::string(tag.value));
  if (damagedAt != nullptr) *damagedAt = reader.damagedAt();
  return tags;
}

// The types of all objects from the begin on.
std::vector<std::string> TypesOf(const TagStream& stream) {
  std::vector<std::string> types;
  for (auto start = stream.NextObject(stream.Begin()); start.Found();
       start = stream.NextObject(start.body)) {
    types.emplace_back(start.type);
  }
  return types;
}

TEST(TextTags, ACodeAndAValueMakeATag) {
  const TagStream stream("  2\r\n  blanks count \r\n", Form::kText);
  std::size_t at = 0;
  Tag tag;
  ASSERT_EQ(stream.Read(at, tag), Outcome::kTag);
  EXPECT_EQ(tag.code, 2);
  EXPECT_EQ(tag.value, "  blanks count ");
  EXPECT_EQ(stream.Read(at, tag), Outcome::kEnd);
}

TEST(TextTags, AValueMayBeEmpty) {
  const TagStream stream("  3\n\n  1\nx\n", Form::kText);
  std::size_t at = 0;
  Tag tag;
  ASSERT_EQ(stream.Read(at, tag), Outcome::kTag);
  EXPECT_EQ(tag.value, "");
  ASSERT_EQ(stream.Read(at, tag), Outcome::kTag);
  EXPECT_EQ(tag.value, "x");
}

TEST(TextTags, AMarkOfUtf8MayStandBeforeTheFirst) {
  const TagStream stream("\xEF\xBB\xBF  0\nSECTION\n", Form::kText);
  EXPECT_EQ(stream.Begin(), 3u);
  EXPECT_THAT(TypesOf(stream), ElementsAre("SECTION"));
}

TEST(TextTags, ACodeThatIsNoNumberIsDamage) {
  const TagStream stream("abc\nx\n", Form::kText);
  std::size_t at = 0;
  Tag tag;
  EXPECT_EQ(stream.Read(at, tag), Outcome::kDamaged);
  EXPECT_EQ(at, 0u);
}

TEST(TextTags, ACodeWithoutAValueIsDamage) {
  const TagStream stream("  2", Form::kText);
  std::size_t at = 0;
  Tag tag;
  EXPECT_EQ(stream.Read(at, tag), Outcome::kDamaged);
}

TEST(TextTags, AnObjectEndsAtTheNext) {
  const TagStream stream("  0\nLAYER\n  2\nWalls\n 70\n0\n  0\nLAYER\n  2\nDoors\n", Form::kText);
  const ObjectStart start = stream.NextObject(0);
  EXPECT_EQ(start.type, "LAYER");
  EXPECT_THAT(TagsOf(stream, start.body), ElementsAre(Pair(2, "Walls"), Pair(70, "0")));
}

TEST(TextTags, AnObjectThatHasEndedStaysEnded) {
  const TagStream stream("  2\nWalls\n  0\nLAYER\n  2\nDoors\n", Form::kText);
  ObjectTags tags(stream, 0);
  Tag tag;
  EXPECT_TRUE(tags.Next(tag));
  EXPECT_FALSE(tags.Next(tag));
  EXPECT_FALSE(tags.Next(tag));
}

TEST(TextTags, CommentsArePassedOver) {
  const TagStream stream("999\nby hand\n  2\nWalls\n999\n0\n", Form::kText);
  EXPECT_THAT(TagsOf(stream, 0), ElementsAre(Pair(2, "Walls")));
}

TEST(TextTags, AValueOfZeroBeginsNoObject) {
  const TagStream stream("  0\nA\n 70\n     0\n 71\n0\n  1\n0\n  2\nx\n  0\nB\n", Form::kText);
  EXPECT_THAT(TypesOf(stream), ElementsAre("A", "B"));
}

TEST(TextTags, ATypeMayBeginWithADigit) {
  const TagStream stream("  0\n3DFACE\n  8\n0\n  0\nLINE\n", Form::kText);
  EXPECT_THAT(TypesOf(stream), ElementsAre("3DFACE", "LINE"));
}

TEST(TextTags, AnObjectIsTheSameByItsPlace) {
  const TagStream stream("  0\nA\n  2\nx\n  0\r\n LINE \r\n  8\n0\n", Form::kText);
  const ObjectStart found = stream.NextObject(stream.NextObject(0).body);
  const ObjectStart same = stream.ObjectAt(found.at);
  EXPECT_EQ(same.at, found.at);
  EXPECT_EQ(same.body, found.body);
  EXPECT_EQ(same.type, "LINE");
}

TEST(TextTags, ABlankLineBetweenTagsCostsNothingAndIsSeen) {
  const TagStream stream("  2\nWalls\n\n 70\n0\n", Form::kText);
  std::size_t damagedAt = 0;
  EXPECT_THAT(TagsOf(stream, 0, &damagedAt), ElementsAre(Pair(2, "Walls"), Pair(70, "0")));
  EXPECT_EQ(damagedAt, 10u);
}

TEST(TextTags, ALostLineCostsTheRestOfItsObjectAlone) {
  const TagStream stream("  0\nA\n  2\n 70\nx\n  1\ny\n  0\nB\n  2\nname\n", Form::kText);
  EXPECT_THAT(TypesOf(stream), ElementsAre("A", "B"));
  const ObjectStart second = stream.NextObject(stream.NextObject(0).body);
  EXPECT_THAT(TagsOf(stream, second.body), ElementsAre(Pair(2, "name")));
}

TEST(TextTags, UnknownCodesAreTagsLikeOthers) {
  const TagStream stream(" -5\na\n80\nb\n99999\nc\n", Form::kText);
  EXPECT_THAT(TagsOf(stream, 0), ElementsAre(Pair(-5, "a"), Pair(80, "b"), Pair(99999, "c")));
}

// One tag of each kind, as a file with two-byte codes has them.
const std::string kKinds = kBinaryStart + "\x00\x00LINE\0"s + "\x02\x00name\0"s +
                           "\x0A\x00\x00\x00\x00\x00\x00\x00\xF0\x3F"s + "\x46\x00\x01\x02"s +
                           "\x5A\x00\x01\x02\x03\x04"s +
                           "\xA0\x00\x01\x02\x03\x04\x05\x06\x07\x08"s + "\x22\x01\x01"s +
                           "\x36\x01\x03\x61\x00\x62"s + "\xE8\x03long code\0"s;

TEST(BinaryTags, EachKindHasItsSize) {
  const TagStream stream(kKinds, Form::kBinaryTwoByte);
  const ObjectStart start = stream.NextObject(stream.Begin());
  EXPECT_EQ(start.type, "LINE");
  EXPECT_THAT(
      TagsOf(stream, start.body),
      ElementsAre(Pair(2, "name"), Pair(10, "\0\0\0\0\0\0\xF0\x3F"s), Pair(70, "\x01\x02"),
                  Pair(90, "\x01\x02\x03\x04"), Pair(160, "\x01\x02\x03\x04\x05\x06\x07\x08"),
                  Pair(290, "\x01"), Pair(310, "a\0b"s), Pair(1000, "long code")));
}

TEST(BinaryTags, TheOldFormHasCodesOfOneByteAndAnEscapeForLongOnes) {
  const std::string bytes = kBinaryStart + "\x00LINE\0"s + "\x08wall\0"s + "\xFF\xE8\x03text\0"s +
                            "\x00"
                            "EOF\0"s;
  const TagStream stream(bytes, Form::kBinaryOneByte);
  EXPECT_THAT(TypesOf(stream), ElementsAre("LINE", "EOF"));
  EXPECT_THAT(TagsOf(stream, stream.NextObject(stream.Begin()).body),
              ElementsAre(Pair(8, "wall"), Pair(1000, "text")));
}

TEST(BinaryTags, EveryCutIsTheEndOrDamageNeverMore) {
  for (std::size_t size = kBinaryStart.size(); size < kKinds.size(); ++size) {
    // A copy of exactly that size, so that a read past it is seen.
    const std::vector<char> cut(kKinds.begin(), kKinds.begin() + static_cast<std::ptrdiff_t>(size));
    const TagStream stream({cut.data(), cut.size()}, Form::kBinaryTwoByte);
    std::size_t at = stream.Begin();
    Tag tag;
    while (stream.Read(at, tag) == Outcome::kTag) EXPECT_LE(at, size);
  }
}

TEST(BinaryTags, ATextWithoutItsEndIsDamage) {
  const std::string bytes = kBinaryStart + "\x02\x00name"s;
  const TagStream stream(bytes, Form::kBinaryTwoByte);
  std::size_t at = stream.Begin();
  Tag tag;
  EXPECT_EQ(stream.Read(at, tag), Outcome::kDamaged);
}

TEST(BinaryTags, BytesThatClaimMoreThanIsLeftAreDamage) {
  const std::string bytes = kBinaryStart +
                            "\x36\x01\xFF"
                            "ab"s;
  const TagStream stream(bytes, Form::kBinaryTwoByte);
  std::size_t at = stream.Begin();
  Tag tag;
  EXPECT_EQ(stream.Read(at, tag), Outcome::kDamaged);
}

TEST(BinaryTags, BehindACodeOfUnknownKindTheNextObjectIsFound) {
  const std::string bytes =
      kBinaryStart + "\x00\x00LINE\0"s + "\x50\x00?????"s + "\x00\x00LAYER\0"s + "\x02\x00walls\0"s;
  const TagStream stream(bytes, Form::kBinaryTwoByte);
  EXPECT_THAT(TypesOf(stream), ElementsAre("LINE", "LAYER"));
}

TEST(BinaryTags, DamageAtTheVeryEndFindsNothingMore) {
  for (const Form form : {Form::kBinaryOneByte, Form::kBinaryTwoByte}) {
    for (const std::string& tail : {"\x50"s, "\x50\x00"s, "\x50\x00\x00"s, "\x50\x00\x00\x00"s}) {
      const std::string bytes = kBinaryStart + tail;
      EXPECT_THAT(TypesOf(TagStream(bytes, form)), ElementsAre());
    }
  }
}

TEST(Numbers, AHandleIsHexadecimalInBothForms) {
  EXPECT_EQ(ParseHandle("1F"), 0x1Fu);
  EXPECT_EQ(ParseHandle(" 1f "), 0x1Fu);
  EXPECT_EQ(ParseHandle("FFFFFFFFFFFFFFFF"), 0xFFFFFFFFFFFFFFFFu);
}

TEST(Numbers, WhatIsNoHandleIsNone) {
  for (const char* text : {"", "0", "x", "1G", "10000000000000000", "-1", "1 2"}) {
    EXPECT_EQ(ParseHandle(text), 0u) << text;
  }
}

TEST(Numbers, AnIntegerIsTextOrLittleEndian) {
  std::int64_t number = 0;
  EXPECT_TRUE(ParseInteger(Form::kText, "   501", number));
  EXPECT_EQ(number, 501);
  EXPECT_TRUE(ParseInteger(Form::kBinaryTwoByte, "\xF5\x01\x00\x00"s, number));
  EXPECT_EQ(number, 501);
}

TEST(Numbers, OfRealsAreTextOrBytesByTheForm) {
  double number = 0;
  EXPECT_TRUE(ParseReal(Form::kText, "  -12.5e1 ", number));
  EXPECT_EQ(number, -125.0);
  EXPECT_TRUE(ParseReal(Form::kText, "+0.5", number));
  EXPECT_EQ(number, 0.5);
  EXPECT_TRUE(ParseReal(Form::kBinaryOneByte, "\0\0\0\0\0\0\xF8\x3F"s, number));
  EXPECT_EQ(number, 1.5);
}

TEST(Numbers, ThatAreNotFiniteOrWholeLeaveTheNumberInItsPlace) {
  double number = 7;
  for (const char* text : {"", "x", "1.5x", "1,5", "nan", "inf", "1e999", "--1", "+-1"}) {
    EXPECT_FALSE(ParseReal(Form::kText, text, number)) << text;
  }
  EXPECT_FALSE(ParseReal(Form::kBinaryTwoByte, "\0\0\0\0\0\0\xF0\x7F"s, number));
  EXPECT_FALSE(ParseReal(Form::kBinaryTwoByte, "\0\0\0\0"s, number));
  EXPECT_EQ(number, 7.0);
}

TEST(Numbers, WhatIsNoIntegerIsRefused) {
  std::int64_t number = 0;
  for (const char* text : {"", "x", "5x", "99999999999999999999"}) {
    EXPECT_FALSE(ParseInteger(Form::kText, text, number)) << text;
  }
  EXPECT_FALSE(ParseInteger(Form::kBinaryTwoByte, "", number));
  EXPECT_FALSE(ParseInteger(Form::kBinaryTwoByte, "123456789", number));
}

}  // namespace
}  // namespace zdx::dxf

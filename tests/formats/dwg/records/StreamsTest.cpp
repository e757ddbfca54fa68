#include <gtest/gtest.h>

#include "backends/database/dwg/records/Streams.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Bits;
using handmade::Wide;

constexpr Format kTogether = {model::kVersion1018, 0};
constexpr Format kApart = {model::kVersion1021, 0};

// Streams of a record that begins with `data`, whose handles are `handles`.
Streams OfRecord(Format format, std::string& bytes, const Bits& data, const Bits& handles) {
  Bits all = data;
  all.Append(handles);
  bytes = all.Bytes();
  return Streams::OfRecord(format, bytes, 0, data.size(), all.size());
}

TEST(Streams, BelowAC1021TextsStandAmongTheDataAndHandlesApart) {
  std::string bytes;
  Streams streams = OfRecord(kTogether, bytes, Bits().B(true).T("name").RC(7), Bits().H(5, 0x1F));
  EXPECT_TRUE(streams.Data().B());
  EXPECT_EQ(streams.Text(), "name");
  EXPECT_EQ(streams.Data().RC(), 7);
  EXPECT_EQ(streams.Handle().value, 0x1Fu);
  EXPECT_TRUE(streams.Good());
}

TEST(Streams, BelowAC1021OneZeroAtATextsEndIsNotPartOfIt) {
  std::string bytes;
  Streams streams =
      OfRecord(kTogether, bytes, Bits().T(std::string("a\0", 2)).T("b").T(""), Bits());
  EXPECT_EQ(streams.Text(), "a");
  EXPECT_EQ(streams.Text(), "b");
  EXPECT_EQ(streams.Text(), "");
  EXPECT_TRUE(streams.Good());
}

TEST(Streams, ASectionBelowAC1021HasHandlesAmongTheData) {
  const std::string bytes = Bits().T("x").H(5, 9).RC(3).Bytes();
  Streams streams = Streams::OfSection(bytes, 0, bytes.size() * 8);
  EXPECT_EQ(streams.Text(), "x");
  EXPECT_EQ(streams.Handle().value, 9u);
  EXPECT_EQ(streams.Data().RC(), 3);
}

// Data, texts, their length in bits, the flag, handles.
TEST(Streams, FromAC1021TextsStandBeforeTheirLengthAndAFlag) {
  const Bits texts = Bits().WideT("ab").WideT("").WideT("c");
  Bits data = Bits().RC(7);
  data.Append(texts).RS(static_cast<unsigned>(texts.size())).B(true);
  std::string bytes;
  Streams streams = OfRecord(kApart, bytes, data, Bits().H(5, 0x1F));
  EXPECT_EQ(streams.Text(), Wide("ab"));
  EXPECT_EQ(streams.Text(), "");
  EXPECT_EQ(streams.Data().RC(), 7);
  EXPECT_EQ(streams.Data().Left(), 0u);
  EXPECT_EQ(streams.Text(), Wide("c"));
  EXPECT_EQ(streams.Handle().value, 0x1Fu);
  EXPECT_TRUE(streams.Good());
}

// 0x8000 and more bits: the word nearest to the flag has the low 15 bits, the one before it the
// others.
TEST(Streams, LongTextsHaveTwoWordsOfLength) {
  const std::string text(3000, 'x');
  const Bits texts = Bits().WideT(text);
  ASSERT_GT(texts.size(), 0x8000u);
  Bits data = Bits().RC(7);
  data.Append(texts);
  data.RS(static_cast<unsigned>(texts.size() >> 15));
  data.RS(static_cast<unsigned>(0x8000 | (texts.size() & 0x7FFF))).B(true);
  std::string bytes;
  Streams streams = OfRecord(kApart, bytes, data, Bits().H(5, 1));
  EXPECT_EQ(streams.Text(), Wide(text));
  EXPECT_EQ(streams.Data().RC(), 7);
  EXPECT_EQ(streams.Data().Left(), 0u);
  EXPECT_TRUE(streams.Good());
}

TEST(Streams, WithoutTheFlagAllTextsAreEmpty) {
  std::string bytes;
  Streams streams = OfRecord(kApart, bytes, Bits().RC(7).B(false), Bits().H(5, 1));
  EXPECT_EQ(streams.Text(), "");
  EXPECT_EQ(streams.Text(), "");
  EXPECT_EQ(streams.Data().RC(), 7);
  EXPECT_TRUE(streams.Good());
}

TEST(Streams, TextsLongerThanTheRecordAreNone) {
  for (const unsigned length : {100u, 0x7FFFu, 0xFFFFu}) {
    std::string bytes;
    Streams streams = OfRecord(kApart, bytes, Bits().RC(7).RS(length).B(true), Bits().H(5, 1));
    EXPECT_EQ(streams.Text(), "");
    EXPECT_EQ(streams.Data().RC(), 7);
  }
}

TEST(Streams, AFlagWithoutRoomForALengthIsNoText) {
  std::string bytes;
  Streams streams = OfRecord(kApart, bytes, Bits().RC(7).B(true), Bits().H(5, 1));
  EXPECT_EQ(streams.Text(), "");
}

TEST(Streams, ATextThatRunsOverItsRunIsBad) {
  const Bits texts = Bits().BS(5).Raw(Wide("ab"));
  Bits data = Bits().RC(7);
  data.Append(texts).RS(static_cast<unsigned>(texts.size())).B(true);
  std::string bytes;
  Streams streams = OfRecord(kApart, bytes, data, Bits().H(5, 1));
  streams.Text();
  EXPECT_FALSE(streams.Good());
}

TEST(Streams, DataDoNotRunIntoTheHandles) {
  std::string bytes;
  Streams streams = OfRecord(kTogether, bytes, Bits().RC(7), Bits().H(5, 0x1F));
  streams.Data().RS();
  EXPECT_FALSE(streams.Good());
}

TEST(Streams, HandlesBehindTheEndAreBad) {
  Streams streams = Streams::OfRecord(kApart, "abc", 0, 1000, 2000);
  streams.Handle();
  EXPECT_FALSE(streams.Good());
  EXPECT_EQ(streams.Text(), "");
}

}  // namespace
}  // namespace zdx::dwg

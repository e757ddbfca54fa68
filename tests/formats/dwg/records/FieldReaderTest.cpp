#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/records/FieldReader.h"
#include "backends/database/dwg/records/Layouts.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Bits;
using testing::ElementsAre;

constexpr model::Version kAll[] = {model::kVersion1014, model::kVersion1015, model::kVersion1018,
                                   model::kVersion1021, model::kVersion1024, model::kVersion1027,
                                   model::kVersion1032};

// A record's fields, written into the streams that the version has.
struct Writer {
  explicit Writer(model::Version v) : version(v) {}

  bool Since(model::Version first) const { return version >= first; }
  void T(std::string_view text) { Since(model::kVersion1021) ? texts.WideT(text) : data.T(text); }
  Streams Read() {
    const Format format = {version, 0};
    Bits all = data;
    if (format.HasStringStream()) {
      all.Append(texts).RS(static_cast<unsigned>(texts.size())).B(true);
    }
    const std::size_t handlesAt = all.size();
    all.Append(handles);
    bytes = all.Bytes();
    return Streams::OfRecord(format, bytes, 0, handlesAt, all.size());
  }
  std::string Stored(const std::string& text) const {
    return Since(model::kVersion1021) ? handmade::Wide(text) : text;
  }

  model::Version version;
  Bits data;
  Bits texts;
  Bits handles;
  std::string bytes;
};

TEST(FieldReader, SkipsTheFieldsOfOtherVersions) {
  constexpr Field kLayout[] = {
      Unnamed(Code::kRC, 1, Until(model::kVersion1014)),
      Unnamed(Code::kRC, 2, Since(model::kVersion1018)),
      Named(Key::kCount, Code::kRC),
  };
  for (const auto& [version, expected] :
       {std::pair(model::kVersion1014, 2u), {model::kVersion1015, 1u}, {model::kVersion1018, 3u}}) {
    Streams streams = Streams::OfRecord({version, 0}, "\1\2\3", 0, 24, 24);
    FieldValues values;
    EXPECT_EQ(ReadFields(kLayout, version, streams, values), Progress::kGoesOn);
    EXPECT_EQ(values.Number(Key::kCount), expected);
  }
}

TEST(FieldReader, AFieldMayDependOnAnEarlierOne) {
  constexpr Field kLayout[] = {
      Named(Key::kPlotStyleKind, Code::kRC),
      If(Key::kPlotStyleKind, 3, Unnamed(Code::kRC)),
      Named(Key::kCount, Code::kRC),
  };
  for (const auto& [bytes, expected] : {std::pair("\3\5\7", 7u), {"\2\5\7", 5u}}) {
    Streams streams = Streams::OfRecord({}, bytes, 0, 24, 24);
    FieldValues values;
    EXPECT_EQ(ReadFields(kLayout, model::kVersion1014, streams, values), Progress::kGoesOn);
    EXPECT_EQ(values.Number(Key::kCount), expected);
  }
}

TEST(FieldReader, WhatWasReadBeforeTheEndIsKept) {
  constexpr Field kLayout[] = {Named(Key::kCount, Code::kRC), Named(Key::kByteCount, Code::kBL)};
  Streams streams = Streams::OfRecord({}, "\5", 0, 8, 8);
  FieldValues values;
  EXPECT_EQ(ReadFields(kLayout, model::kVersion1014, streams, values), Progress::kEnded);
  EXPECT_EQ(values.Number(Key::kCount), 5u);
  EXPECT_EQ(values.Find(Key::kByteCount), nullptr);
}

TEST(FieldReader, AListOfMoreThanThereIsRoomForIsNotBegun) {
  constexpr Field kLayout[] = {Named(Key::kCount, Code::kBL),
                               Repeated(Key::kEntries, Code::kHandle, Key::kCount)};
  const Bits data = Bits().BL(0xFFFFFFFF);
  const std::string bytes = Bits().Append(data).H(5, 1).H(5, 2).Bytes();
  Streams streams = Streams::OfRecord({}, bytes, 0, data.size(), bytes.size() * 8);
  FieldValues values;
  EXPECT_EQ(ReadFields(kLayout, model::kVersion1014, streams, values), Progress::kEnded);
  EXPECT_TRUE(values.Handles(Key::kEntries).empty());
}

// Entity data in the order of the format, every item of its own value where it has one.
void PutEntity(Writer& writer, unsigned colour) {
  Bits& data = writer.data;
  data.BB(2).BL(1);
  if (!writer.Since(model::kVersion1015)) data.B(true);
  if (writer.Since(model::kVersion1018)) data.B(true);
  if (!writer.Since(model::kVersion1018)) data.B(true);
  if (writer.Since(model::kVersion1027)) data.B(false);
  data.BS(colour);
  if (writer.Since(model::kVersion1018) && (colour & 0x2000) != 0) data.BL(0x02000080);
  if (writer.Since(model::kVersion1018) && (colour & 0xC000) == 0x8000) data.BL(0xC2112233);
  data.BD(2.5);
  if (writer.Since(model::kVersion1015)) data.BB(3).BB(1);
  if (writer.Since(model::kVersion1021)) data.BB(1).RC(2);
  if (writer.Since(model::kVersion1024)) data.B(true).B(false).B(true);
  data.BS(0);
  if (writer.Since(model::kVersion1015)) data.RC(29);
}

TEST(Layouts, ABlocksBeginHasItsNameBehindTheEntityDataOfEveryVersion) {
  for (const model::Version version : kAll) {
    for (const unsigned colour : {7u, 0x2007u, 0x4000u, 0x8000u, 0xA000u}) {
      SCOPED_TRACE(version);
      Writer writer(version);
      PutEntity(writer, colour);
      writer.T("Door");
      Streams streams = writer.Read();
      FieldValues values;
      EXPECT_EQ(ReadFields(EntityLayout(), version, streams, values), Progress::kGoesOn);
      EXPECT_EQ(values.Number(Key::kOwnerMode), 2u);
      EXPECT_EQ(ReadFields(OwnLayout(4), version, streams, values), Progress::kGoesOn);
      EXPECT_EQ(values.Find(Key::kName)->bytes, writer.Stored("Door"));
      EXPECT_EQ(streams.Data().Left(), 0u);
    }
  }
}

// Object data, and its handles: owner, one reactor, extension.
void PutObject(Writer& writer, bool hasExtension = true) {
  writer.data.BL(1);
  if (writer.Since(model::kVersion1018)) writer.data.B(!hasExtension);
  if (writer.Since(model::kVersion1027)) writer.data.B(false);
  writer.handles.H(4, 0x11).H(4, 0x12);
  if (!writer.Since(model::kVersion1018) || hasExtension) writer.handles.H(3, 0x13);
}

FieldValues ValuesOf(Writer& writer, ObjectType type, const Question& question = {}) {
  Streams streams = writer.Read();
  FieldValues values;
  EXPECT_EQ(ReadFields(ObjectLayout(), writer.version, streams, values), Progress::kGoesOn);
  EXPECT_EQ(ReadFields(ObjectHandlesLayout(), writer.version, streams, values), Progress::kGoesOn);
  EXPECT_EQ(ReadFields(OwnLayout(type), writer.version, streams, values, question),
            question.last == Key::kNone ? Progress::kGoesOn : Progress::kAnswered);
  EXPECT_TRUE(streams.Good());
  return values;
}

// What a table record has behind its name.
void PutReference(Writer& writer) {
  if (writer.Since(model::kVersion1021)) {
    writer.data.BS(256);
  } else {
    writer.data.B(true).BS(256).B(true);
  }
}

TEST(Layouts, ABlockRecordLeadsToItsBegin) {
  for (const model::Version version : kAll) {
    SCOPED_TRACE(version);
    Writer writer(version);
    PutObject(writer);
    writer.T("*U");
    PutReference(writer);
    writer.data.B(true).B(true);
    writer.handles.H(5, 0x20).H(3, 0x21).H(3, 0x22);
    const FieldValues values = ValuesOf(writer, 49, {Key::kBlockBegin});
    EXPECT_EQ(values.Find(Key::kName)->bytes, writer.Stored("*U"));
    EXPECT_EQ(values.Number(Key::kAnonymous), 1u);
    EXPECT_EQ(values.Handle(Key::kBlockBegin), 0x21u);
    EXPECT_EQ(values.Handle(Key::kOwner), 0x11u);
    EXPECT_EQ(values.Handle(Key::kExtension), 0x13u);
  }
}

TEST(Layouts, WithoutAnExtensionTheOwnHandlesFollowAtOnce) {
  for (const model::Version version : {model::kVersion1018, model::kVersion1032}) {
    Writer writer(version);
    PutObject(writer, false);
    writer.T("A");
    PutReference(writer);
    writer.data.B(false);
    writer.handles.H(5, 0x20).H(3, 0x21);
    const FieldValues values = ValuesOf(writer, 49, {Key::kBlockBegin});
    EXPECT_EQ(values.Find(Key::kExtension), nullptr);
    EXPECT_EQ(values.Handle(Key::kBlockBegin), 0x21u);
  }
}

TEST(Layouts, ALinetypeHasItsCommentsBehindTheReference) {
  for (const model::Version version : kAll) {
    SCOPED_TRACE(version);
    Writer writer(version);
    PutObject(writer);
    writer.T("Dash");
    PutReference(writer);
    writer.T("__ __");
    const FieldValues values = ValuesOf(writer, 57);
    EXPECT_EQ(values.Find(Key::kName)->bytes, writer.Stored("Dash"));
    EXPECT_EQ(values.Find(Key::kComments)->bytes, writer.Stored("__ __"));
  }
}

TEST(Layouts, ADictionaryHasKeysAndHandles) {
  for (const model::Version version : kAll) {
    SCOPED_TRACE(version);
    Writer writer(version);
    PutObject(writer);
    writer.data.BL(2);
    if (writer.Since(model::kVersion1015)) writer.data.BS(1);
    writer.data.RC(1);
    writer.T("One");
    writer.T("Two");
    writer.handles.H(2, 0x31).H(2, 0x32);
    const FieldValues values = ValuesOf(writer, 42);
    EXPECT_THAT(values.Texts(Key::kKeys), ElementsAre(writer.Stored("One"), writer.Stored("Two")));
    ASSERT_EQ(values.Handles(Key::kEntries).size(), 2u);
    EXPECT_EQ(values.Handles(Key::kEntries)[1], 0x32u);
  }
}

TEST(Layouts, SomeTablesNameTwoRecordsApart) {
  for (const model::Version version : kAll) {
    Writer writer(version);
    PutObject(writer);
    writer.data.BL(1);
    writer.handles.H(2, 0x31).H(3, 0x32).H(3, 0x33);
    const FieldValues blocks = ValuesOf(writer, 48);
    EXPECT_EQ(blocks.Handles(Key::kEntries).size(), 1u);
    EXPECT_EQ(blocks.Handle(Key::kModelSpace), 0x32u);
    EXPECT_EQ(blocks.Handle(Key::kPaperSpace), 0x33u);
    const FieldValues linetypes = ValuesOf(writer, 56);
    EXPECT_EQ(linetypes.Handle(Key::kByBlock), 0x32u);
    EXPECT_EQ(linetypes.Handle(Key::kByLayer), 0x33u);
  }
}

TEST(Layouts, AFreeRecordHasItsBytesAndAProxyItsClass) {
  for (const model::Version version : kAll) {
    Writer writer(version);
    PutObject(writer);
    writer.data.BL(3).Raw("abc");
    EXPECT_EQ(ValuesOf(writer, 79).Find(Key::kBytes)->bytes, "abc");
    Writer proxy(version);
    PutObject(proxy);
    proxy.data.BL(512);
    EXPECT_EQ(ValuesOf(proxy, 499).Number(Key::kClassNumber), 512u);
  }
}

TEST(Layouts, AProxyOfAnEntityHasItsClassToo) {
  for (const model::Version version : kAll) {
    Writer writer(version);
    PutEntity(writer, 7);
    writer.data.BL(512);
    Streams streams = writer.Read();
    FieldValues values;
    EXPECT_EQ(ReadFields(EntityLayout(), version, streams, values), Progress::kGoesOn);
    EXPECT_EQ(ReadFields(OwnLayout(498), version, streams, values), Progress::kGoesOn);
    EXPECT_EQ(values.Number(Key::kClassNumber), 512u);
  }
}

TEST(Layouts, OtherTypesHaveNoFieldsOfTheirOwn) {
  for (const int type : {0, 5, 6, 19, 43, 73, 82, 500}) {
    EXPECT_TRUE(OwnLayout(static_cast<ObjectType>(type)).empty()) << type;
  }
}

}  // namespace
}  // namespace zdx::dwg

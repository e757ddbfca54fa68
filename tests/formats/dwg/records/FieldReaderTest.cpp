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

// The handles that all entities have: owner is none, for the mode tells it.
void PutEntityHandles(Writer& writer, unsigned colour) {
  Bits& handles = writer.handles;
  const bool since1015 = writer.Since(model::kVersion1015);
  handles.H(4, 0x12);  // reactor
  if (!writer.Since(model::kVersion1018)) handles.H(3, 0x13);
  if (writer.Since(model::kVersion1018) && (colour & 0x4000) != 0) handles.H(5, 0x14);
  if (!since1015) handles.H(5, 0x15);
  if (since1015) handles.H(5, 0x15).H(5, 0x16);
  if (writer.Since(model::kVersion1024)) handles.H(5, 0x17).H(5, 0x18);
}

// An entity whose own fields are written next.
Writer EntityWriter(model::Version version) {
  Writer writer(version);
  PutEntity(writer, 0x4000);
  PutEntityHandles(writer, 0x4000);
  return writer;
}

FieldValues EntityValues(Writer& writer, ObjectType type, const Question& question = {}) {
  Streams streams = writer.Read();
  FieldValues values(0x100);
  Progress progress = ReadFields(EntityLayout(), writer.version, streams, values, question);
  for (const auto layout : {EntityHandlesLayout(), OwnLayout(type)}) {
    if (progress != Progress::kGoesOn) break;
    progress = ReadFields(layout, writer.version, streams, values, question);
  }
  EXPECT_NE(progress, Progress::kEnded);
  return values;
}

TEST(Layouts, TheLastFieldAskedForEndsTheReadingWhetherItIsThereOrNot) {
  constexpr Field kLayout[] = {
      Named(Key::kCount, Code::kRC),
      If(Key::kCount, 9, Named(Key::kOwner, Code::kRC)),
      Named(Key::kName, Code::kRC),
  };
  for (const Key last : {Key::kCount, Key::kOwner}) {
    Streams streams = Streams::OfRecord({}, "\5\6\7", 0, 24, 24);
    FieldValues values;
    EXPECT_EQ(ReadFields(kLayout, model::kVersion1014, streams, values, {last}),
              Progress::kAnswered);
    EXPECT_EQ(values.Number(Key::kCount), 5u);
    EXPECT_EQ(values.Find(Key::kName), nullptr);
  }
}

TEST(Layouts, AReferenceIsCountedFromTheOwnHandle) {
  constexpr Field kLayout[] = {Named(Key::kOwner, Code::kHandle)};
  const std::string bytes = Bits().H(0xC, 0x10).Bytes();
  Streams streams = Streams::OfRecord({}, bytes, 0, 0, 16);
  FieldValues values(0x100);
  EXPECT_EQ(ReadFields(kLayout, model::kVersion1014, streams, values), Progress::kGoesOn);
  EXPECT_EQ(values.Handle(Key::kOwner), 0xF0u);
}

TEST(FieldReader, AListOnRequestIsKeptForWhoAsksWithoutNullHandles) {
  constexpr Field kLayout[] = {
      Named(Key::kOwnedCount, Code::kRC),
      OnRequest(Repeated(Key::kOwned, Code::kHandle, Key::kOwnedCount)),
      Named(Key::kLayout, Code::kHandle),
  };
  const std::string bytes = Bits().RC(3).H(3, 0x31).H(3, 0).H(3, 0x33).H(5, 0x40).Bytes();
  for (const Key asked : {Key::kOwned, Key::kInserts, Key::kNone}) {
    Streams streams = Streams::OfRecord({}, bytes, 0, 8, bytes.size() * 8);
    FieldValues values;
    EXPECT_EQ(ReadFields(kLayout, model::kVersion1014, streams, values, {Key::kNone, asked}),
              Progress::kGoesOn);
    EXPECT_EQ(values.Handles(Key::kOwned).size(), asked == Key::kOwned ? 2u : 0u);
    EXPECT_EQ(values.Handle(Key::kLayout), 0x40u);
  }
}

TEST(FieldReader, AMillionHandlesAreAListIfTheRecordHasRoomForThem) {
  constexpr Field kLayout[] = {
      Named(Key::kOwnedCount, Code::kBL),
      OnRequest(Repeated(Key::kOwned, Code::kHandle, Key::kOwnedCount)),
  };
  constexpr std::uint32_t kCount = 1000000;
  const std::string data = Bits().BL(kCount).Append(Bits().Number(0, 6)).Bytes();
  for (const bool isLong : {true, false}) {
    // Three bytes each, or one.
    std::string bytes = data;
    for (std::uint32_t i = 0; i < kCount; ++i) bytes += isLong ? "\x32\x41\x42" : "\x60";
    Streams streams = Streams::OfRecord({}, bytes, 0, data.size() * 8, bytes.size() * 8);
    FieldValues values;
    const Progress progress =
        ReadFields(kLayout, model::kVersion1014, streams, values, {Key::kNone, Key::kOwned});
    EXPECT_EQ(progress, isLong ? Progress::kGoesOn : Progress::kEnded);
    EXPECT_EQ(values.Handles(Key::kOwned).size(), isLong ? kCount : 0u);
  }
}

TEST(FieldReader, TakesTheTextsThatAreLeftButEmptyOnes) {
  constexpr Field kLayout[] = {Named(Key::kName, Code::kText), Named(Key::kTextures, Code::kTexts)};
  for (const bool isCut : {false, true}) {
    Writer writer(model::kVersion1021);
    for (const char* text : {"name", "a", "", "b"}) writer.T(text);
    // A text of which only the length is there.
    if (isCut) writer.texts.BS(5);
    Streams streams = writer.Read();
    FieldValues values;
    EXPECT_EQ(ReadFields(kLayout, writer.version, streams, values),
              isCut ? Progress::kEnded : Progress::kGoesOn);
    EXPECT_THAT(values.Texts(Key::kTextures), ElementsAre(writer.Stored("a"), writer.Stored("b")));
  }
}

TEST(Layouts, ABlockRecordNamesWhatStandsInItAndWhatShowsIt) {
  for (const model::Version version : kAll) {
    SCOPED_TRACE(version);
    Writer writer(version);
    PutObject(writer);
    writer.T("Door");
    PutReference(writer);
    Bits& data = writer.data;
    // Anonymous, attributes, external, overlay; loaded.
    data.B(false).B(true).B(false).B(false);
    if (writer.Since(model::kVersion1015)) data.B(true);
    if (writer.Since(model::kVersion1018)) data.BL(3);
    data.BD(0).BD(2.5).BD(0);
    writer.T("C:\\path");
    if (writer.Since(model::kVersion1015)) {
      data.RC(1).RC(7).RC(0);
      writer.T("Description");
      data.BL(5).Raw("image");
    }
    if (writer.Since(model::kVersion1021)) data.BS(4).B(true).RC(0);
    Bits& handles = writer.handles;
    handles.H(5, 0).H(3, 0x21);
    if (writer.Since(model::kVersion1018)) {
      handles.H(3, 0x31).H(3, 0x32).H(3, 0x33);
    } else {
      handles.H(4, 0x31).H(4, 0x33);
    }
    handles.H(3, 0x22);
    if (writer.Since(model::kVersion1015)) handles.H(4, 0x41).H(4, 0x42).H(5, 0x50);
    Writer again = writer;

    const FieldValues owned = ValuesOf(writer, 49, {Key::kNone, Key::kOwned});
    if (writer.Since(model::kVersion1018)) {
      EXPECT_THAT(owned.Handles(Key::kOwned), ElementsAre(0x31u, 0x32u, 0x33u));
    } else {
      EXPECT_EQ(owned.Handle(Key::kFirst), 0x31u);
      EXPECT_EQ(owned.Handle(Key::kLast), 0x33u);
    }
    const FieldValues inserts = ValuesOf(again, 49, {Key::kNone, Key::kInserts});
    if (writer.Since(model::kVersion1015)) {
      EXPECT_EQ(inserts.Number(Key::kInsertCount), 2u);
      EXPECT_THAT(inserts.Handles(Key::kInserts), ElementsAre(0x41u, 0x42u));
      EXPECT_EQ(inserts.Handle(Key::kLayout), 0x50u);
    }
  }
}

TEST(Layouts, AnExternalBlockOwnsNothing) {
  for (const auto& [external, overlay] : {std::pair(true, false), {true, true}, {false, true}}) {
    for (const model::Version version : {model::kVersion1015, model::kVersion1018}) {
      SCOPED_TRACE(version);
      Writer writer(version);
      PutObject(writer);
      writer.T("Plan");
      PutReference(writer);
      writer.data.B(false).B(false).B(external).B(overlay).B(true).BD(0).BD(0).BD(0);
      writer.T("plan.dwg");
      writer.data.RC(1).RC(0);
      writer.T("");
      writer.data.BL(0);
      writer.handles.H(5, 0).H(3, 0x21).H(3, 0x22).H(4, 0x41).H(5, 0);
      const FieldValues values = ValuesOf(writer, 49, {Key::kNone, Key::kInserts});
      EXPECT_THAT(values.Handles(Key::kInserts), ElementsAre(0x41u));
      EXPECT_EQ(values.Find(Key::kFirst), nullptr);
    }
  }
}

// The place, the scale in each of its forms, and what follows.
void PutInsert(Writer& writer, unsigned scale, bool hasAttributes) {
  Bits& data = writer.data;
  data.BD(1).BD(2.5).BD(0);
  if (!writer.Since(model::kVersion1015)) {
    data.BD(1).BD(2).BD(3);
  } else {
    data.BB(scale);
    if (scale == 1) data.BB(0).BB(1).Raw("abcd");
    if (scale == 2) data.RD(2.5);
    if (scale == 0) data.RD(2.5).BB(2).Raw("abcdef").BB(3).RD(4.5);
  }
  data.BD(0.5).BD(0).BD(0).BD(1).B(hasAttributes);
}

TEST(Layouts, AReferenceHasItsBlockAndAttributesWhateverItsScale) {
  for (const model::Version version : kAll) {
    for (const unsigned scale : {0u, 1u, 2u, 3u}) {
      SCOPED_TRACE(version);
      Writer writer = EntityWriter(version);
      PutInsert(writer, scale, true);
      if (writer.Since(model::kVersion1018)) writer.data.BL(3);
      writer.handles.H(5, 0x20).H(4, 0x31);
      if (writer.Since(model::kVersion1018)) writer.handles.H(3, 0x32);
      writer.handles.H(4, 0x33).H(3, 0x34);
      const FieldValues values = EntityValues(writer, 7);
      EXPECT_EQ(values.Handle(Key::kBlock), 0x20u);
      if (writer.Since(model::kVersion1018)) {
        EXPECT_THAT(values.Handles(Key::kAttributes), ElementsAre(0x31u, 0x32u, 0x33u));
      } else {
        EXPECT_EQ(values.Handle(Key::kFirst), 0x31u);
        EXPECT_EQ(values.Handle(Key::kLast), 0x33u);
      }
    }
  }
}

TEST(Layouts, AReferenceWithoutAttributesNamesNone) {
  for (const model::Version version : kAll) {
    Writer writer = EntityWriter(version);
    PutInsert(writer, 3, false);
    writer.handles.H(5, 0x20);
    for (const ObjectType type : {kReferenceType, kReferenceArrayType}) {
      Writer copy = writer;
      const FieldValues values = EntityValues(copy, type);
      EXPECT_EQ(values.Handle(Key::kBlock), 0x20u);
      EXPECT_EQ(values.Handle(Key::kFirst), 0u);
      EXPECT_TRUE(values.Handles(Key::kAttributes).empty());
    }
  }
}

// A text with the fields that `flags` doesn't leave out.
void PutText(Writer& writer, unsigned flags, const std::string& text) {
  Bits& data = writer.data;
  if (!writer.Since(model::kVersion1015)) {
    data.BD(0).RD(1).RD(2).RD(3).RD(4).BD(0).BD(0).BD(1).BD(0).BD(0).BD(0.5).BD(2.5).BD(1);
    writer.T(text);
    data.BS(0).BS(1).BS(300);
    return;
  }
  data.RC(flags);
  if ((flags & 1) == 0) data.RD(1.5);
  data.RD(1).RD(2);
  if ((flags & 2) == 0) data.BB(0).BB(3).RD(4);
  data.B(false).BD(0).BD(0).BD(1).B(false).BD(2.5);
  if ((flags & 4) == 0) data.RD(0.1);
  if ((flags & 8) == 0) data.RD(0.2);
  data.RD(2.5);
  if ((flags & 16) == 0) data.RD(0.9);
  writer.T(text);
  for (const unsigned bit : {32u, 64u, 128u}) {
    if ((flags & bit) == 0) data.BS(bit);
  }
}

void PutMText(Writer& writer, unsigned background, unsigned columns, const std::string& text) {
  Bits& data = writer.data;
  for (int i = 0; i < 9; ++i) data.BD(i);
  data.BD(40);
  if (writer.Since(model::kVersion1021)) data.BD(20);
  data.BD(2.5).BS(1).BS(5).BD(3.5).BD(4.5);
  writer.T(text);
  if (writer.Since(model::kVersion1015)) data.BS(1).BD(1).B(false);
  if (writer.Since(model::kVersion1018)) {
    data.BL(background);
    if (background != 0) data.BD(1.5).BS(0).BL(0xC3000007).RC(1).BL(0);
    if (background != 0) writer.T("Name of a colour");
  }
  if (!writer.Since(model::kVersion1032)) return;
  data.B(true).BS(4).B(true).BL(1);
  for (int i = 0; i < 6; ++i) data.BD(i);
  data.BD(1).BD(2.5).BD(0).BD(0).BS(columns);
  if (columns == 0) return;
  data.BL(3).BD(40).BD(5).B(columns == 1).B(false);
  if (columns == 2) data.BD(1).BD(2.5).BD(0);
}

TEST(Layouts, ATextIsFoundWhateverFieldsItLeavesOut) {
  for (const model::Version version : kAll) {
    for (unsigned flags = 0; flags < 256; ++flags) {
      SCOPED_TRACE(flags);
      Writer writer = EntityWriter(version);
      PutText(writer, flags, "Kitchen");
      EXPECT_EQ(EntityValues(writer, 1).Find(Key::kText)->bytes, writer.Stored("Kitchen"));
    }
  }
}

TEST(Layouts, AnAttributeHasItsTextTagAndFlags) {
  for (const model::Version version : kAll) {
    for (const unsigned flags : {0u, 0xA5u, 0xFFu}) {
      SCOPED_TRACE(version);
      Writer writer = EntityWriter(version);
      PutText(writer, flags, "12");
      if (writer.Since(model::kVersion1024)) writer.data.RC(0);
      if (writer.Since(model::kVersion1032)) writer.data.RC(1);
      writer.T("NUMBER");
      writer.data.BS(0).RC(10);
      if (writer.Since(model::kVersion1021)) writer.data.B(true);
      Writer definition = writer;
      if (writer.Since(model::kVersion1024)) definition.data.RC(0);
      definition.T("Which number?");
      for (const ObjectType type : {kAttributeType, kAttributeDefinitionType}) {
        Writer& written = type == kAttributeType ? writer : definition;
        const FieldValues values = EntityValues(written, type);
        EXPECT_EQ(values.Find(Key::kText)->bytes, writer.Stored("12"));
        EXPECT_EQ(values.Find(Key::kTag)->bytes, writer.Stored("NUMBER"));
        EXPECT_EQ(values.Number(Key::kAttributeFlags), 10u);
        if (type == kAttributeDefinitionType) {
          EXPECT_EQ(values.Find(Key::kPrompt)->bytes, writer.Stored("Which number?"));
        }
      }
    }
  }
}

TEST(Layouts, AnAttributeWithManyLinesHoldsATextBeforeItsTag) {
  for (const unsigned background : {0u, 1u, 16u}) {
    for (const unsigned columns : {0u, 1u, 2u}) {
      Writer writer = EntityWriter(model::kVersion1032);
      PutText(writer, 0xFF, "");
      writer.data.RC(0).RC(2);
      PutEntity(writer, 0x8000);
      PutMText(writer, background, columns, "one\\Ptwo");
      writer.data.BS(3).Raw("abc").BS(1);
      writer.T("REMARK");
      writer.data.BS(0).RC(2).B(true);
      const FieldValues values = EntityValues(writer, 2);
      EXPECT_EQ(values.Find(Key::kText)->bytes, writer.Stored("one\\Ptwo"));
      EXPECT_EQ(values.Find(Key::kTag)->bytes, writer.Stored("REMARK"));
      EXPECT_EQ(values.Number(Key::kAttributeFlags), 2u);
      EXPECT_EQ(values.Number(Key::kAttributeKind), 2u);
    }
  }
}

TEST(Layouts, ATextOfManyLinesIsFound) {
  for (const model::Version version : kAll) {
    Writer writer = EntityWriter(version);
    PutMText(writer, 1, 2, "{\\fArial;a}");
    EXPECT_EQ(EntityValues(writer, 44).Find(Key::kText)->bytes, writer.Stored("{\\fArial;a}"));
  }
}

// All but the versions that came before it.
constexpr model::Version kWithLocation[] = {model::kVersion1021, model::kVersion1024,
                                            model::kVersion1027, model::kVersion1032};

void PutPoint(Bits& data, double x, double y, double z) { data.BD(x).BD(y).BD(z); }

TEST(Layouts, ALocationHasItsNumbersAndTexts) {
  for (const model::Version version : kWithLocation) {
    for (const std::uint32_t geoVersion : {2u, 3u}) {
      Writer writer(version);
      PutObject(writer);
      Bits& data = writer.data;
      data.BL(geoVersion).BS(3);
      PutPoint(data, 1.5, 2.5, 3.5);
      PutPoint(data, 4.5, 5.5, 6.5);
      data.BD(0.3048).BL(2).BD(0.0254).BL(1);
      PutPoint(data, 0, 0, 1);
      data.RD(0.6).RD(0.8).BL(2).BD(7.5).B(true).BD(8.5).BD(9.5);
      for (const char* text : {"system", "tag", "from", "to", "coverage"}) writer.T(text);
      data.BL(0).BL(0);
      const FieldValues values = ValuesOf(writer, kGeoDataType);
      EXPECT_EQ(values.Number(Key::kCoordinateType), 3u);
      EXPECT_THAT(values.RealsOf(Key::kDesignPoint), ElementsAre(1.5, 2.5, 3.5));
      EXPECT_THAT(values.RealsOf(Key::kReferencePoint), ElementsAre(4.5, 5.5, 6.5));
      EXPECT_EQ(values.Real(Key::kHorizontalScale), 0.3048);
      EXPECT_EQ(values.Number(Key::kHorizontalUnits), 2u);
      EXPECT_EQ(values.Real(Key::kVerticalScale), 0.0254);
      EXPECT_EQ(values.Number(Key::kVerticalUnits), 1u);
      EXPECT_THAT(values.RealsOf(Key::kUpDirection), ElementsAre(0, 0, 1));
      EXPECT_THAT(values.RealsOf(Key::kNorthVector), ElementsAre(0.6, 0.8, 0));
      EXPECT_EQ(values.Real(Key::kScaleFactor), 7.5);
      EXPECT_EQ(values.Number(Key::kSeaLevel), 1u);
      EXPECT_EQ(values.Real(Key::kSeaElevation), 8.5);
      EXPECT_EQ(values.Real(Key::kProjectionRadius), 9.5);
      EXPECT_EQ(values.Find(Key::kCoordinateSystem)->bytes, writer.Stored("system"));
      EXPECT_EQ(values.Find(Key::kGeoTag)->bytes, writer.Stored("tag"));
      EXPECT_EQ(values.Find(Key::kObservationFrom)->bytes, writer.Stored("from"));
      EXPECT_EQ(values.Find(Key::kObservationTo)->bytes, writer.Stored("to"));
      EXPECT_EQ(values.Find(Key::kObservationCoverage)->bytes, writer.Stored("coverage"));
    }
  }
}

TEST(Layouts, TheFirstLocationHasAnotherOrder) {
  for (const model::Version version : kWithLocation) {
    Writer writer(version);
    PutObject(writer);
    Bits& data = writer.data;
    data.BL(1).BS(2);
    PutPoint(data, 4.5, 5.5, 6.5);
    data.BL(6);
    PutPoint(data, 1.5, 2.5, 3.5);
    PutPoint(data, 0, 0, 0);
    PutPoint(data, 0, 0, 1);
    data.BD(0.25);
    PutPoint(data, 0, 0, 0);
    writer.T("system");
    writer.T("tag");
    data.BD(0.3048);
    for (const char* text : {"", "", "from", "to", "coverage"}) writer.T(text);
    const FieldValues values = ValuesOf(writer, kGeoDataType);
    EXPECT_THAT(values.RealsOf(Key::kDesignPoint), ElementsAre(1.5, 2.5, 3.5));
    EXPECT_THAT(values.RealsOf(Key::kReferencePoint), ElementsAre(4.5, 5.5, 6.5));
    EXPECT_EQ(values.Number(Key::kHorizontalUnits), 6u);
    EXPECT_EQ(values.Real(Key::kNorthAngle), 0.25);
    EXPECT_EQ(values.Real(Key::kHorizontalScale), 0.3048);
    EXPECT_EQ(values.Find(Key::kCoordinateSystem)->bytes, writer.Stored("system"));
    EXPECT_EQ(values.Find(Key::kObservationCoverage)->bytes, writer.Stored("coverage"));
  }
}

TEST(Layouts, OtherTypesHaveNoFieldsOfTheirOwn) {
  for (const int type : {0, 5, 6, 19, 43, 73, 80, 500}) {
    EXPECT_TRUE(OwnLayout(static_cast<ObjectType>(type)).empty()) << type;
  }
}

}  // namespace
}  // namespace zdx::dwg

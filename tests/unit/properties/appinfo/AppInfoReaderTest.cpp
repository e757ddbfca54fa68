// The walk: where the block is found, what is told of it, and how it ends.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/appinfo/AppInfoReader.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"
#include "unit/properties/appinfo/Heard.h"

using appinfo::Block;
using appinfo::Bytes;
using appinfo::Header;
using appinfo::kOtherId;
using appinfo::kSummaryId;
using appinfo::WithBytesAt;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr std::uint32_t kOffset = 0x80;

class AppInfoWalk : public scripted::ScriptedTest {
 protected:
  bool Read(const std::string& bytes) {
    world.files.contents[L"a.dwg"] = bytes;
    heard = {};
    return ZDXEngine::ReadAppInfo(L"a.dwg", heard);
  }

  appinfo::Heard heard;
  const Block block = {.entries = {{kOtherId, u"one"}, {kSummaryId, u"two"}}};
};

TEST_F(AppInfoWalk, EveryEntryIsToldInTheFilesOrder) {
  EXPECT_TRUE(Read(appinfo::File(block)));
  EXPECT_THAT(heard.words, ElementsAre("count 2", "one", "two"));
  EXPECT_THAT(heard.ids, ElementsAre(kOtherId, kSummaryId));
}

TEST_F(AppInfoWalk, TwoEntriesOfOneIdAreBothTold) {
  EXPECT_TRUE(Read(appinfo::File({.entries = {{kOtherId, u"one"}, {kOtherId, u"two"}}})));
  EXPECT_THAT(heard.words, ElementsAre("count 2", "one", "two"));
}

TEST_F(AppInfoWalk, ABlockWithoutEntriesIsFound) {
  EXPECT_TRUE(Read(appinfo::File({})));
  EXPECT_THAT(heard.words, ElementsAre("count 0"));
}

TEST_F(AppInfoWalk, TheWordAndTheLabelMeanNothing) {
  EXPECT_TRUE(Read(
      appinfo::File({.word = 0xFFFFFFFF, .label = u"anything", .entries = {{kOtherId, u"one"}}})));
  EXPECT_THAT(heard.words, ElementsAre("count 1", "one"));
}

TEST_F(AppInfoWalk, TheFileIsOpenedTwiceAndClosedTwice) {
  Read(appinfo::File(block));
  EXPECT_THAT(world.Calls(), ElementsAre("CreateFileW(a.dwg, 0x80000000, 3, null, 3, 0x80, null)",
                                         "ReadFile(file 1, 128)", "CloseHandle(file 1)",
                                         "CreateFileW(a.dwg, 0x80000000, 3, null, 3, 0x80, null)",
                                         "SetFilePointer(file 2, 128, null, 0)",
                                         "ReadFile(file 2, 2048)", "CloseHandle(file 2)"));
}

TEST_F(AppInfoWalk, AFileWithoutABlockIsNotOpenedASecondTime) {
  for (const char* magic : {"AC1012", "AC1014", "AC1015", "AC1027", "AC1032", "AC701A"}) {
    world.ForgetCalls();
    EXPECT_FALSE(Read(Bytes(Header{.magic = magic, .first = kOffset}) + Bytes(block))) << magic;
    EXPECT_THAT(heard.words, IsEmpty());
    EXPECT_EQ(world.Count("CreateFileW"), 1) << magic;
  }
}

TEST_F(AppInfoWalk, EveryMagicWithABlockIsRead) {
  for (const char* magic : {"AC1018", "AC1021", "AC701a", "AC1024"}) {
    EXPECT_TRUE(Read(Bytes(Header{.magic = magic, .first = kOffset}) + Bytes(block))) << magic;
  }
}

TEST_F(AppInfoWalk, AFileThatIsNotThereHasNone) {
  EXPECT_FALSE(ZDXEngine::ReadAppInfo(L"missing.dwg", heard));
  EXPECT_EQ(world.Count("CreateFileW"), 1);
}

TEST_F(AppInfoWalk, AFileThatIsGoneAtTheSecondOpeningHasNone) {
  world.Fail("CreateFileW", 5, 2);
  EXPECT_FALSE(Read(appinfo::File(block)));
  EXPECT_THAT(heard.words, IsEmpty());
}

TEST_F(AppInfoWalk, AFailedSeekHasNone) {
  world.Fail("SetFilePointer", 5);
  EXPECT_FALSE(Read(appinfo::File(block)));
  EXPECT_EQ(world.Count("CloseHandle"), 2);
  EXPECT_EQ(world.Count("ReadFile"), 1);
}

TEST_F(AppInfoWalk, AnOffsetWithItsTopBitSetIsNotReached) {
  EXPECT_FALSE(Read(Bytes(Header{.first = 0x80000000, .second = 0x7FFFFFFF}) + Bytes(block)));
  EXPECT_THAT(world.Calls({"SetFilePointer"}),
              ElementsAre("SetFilePointer(file 2, -2147483648, null, 0)"));
}

TEST_F(AppInfoWalk, TheLargerCandidateIsWhereTheSearchBegins) {
  const Header header = {.magic = "AC1018", .release = 0x0F, .first = 0x2000, .second = 0x1000};
  EXPECT_TRUE(Read(WithBytesAt(Bytes(header), 0x2000, Bytes(block))));
  EXPECT_THAT(world.Calls({"SetFilePointer"}),
              ElementsAre("SetFilePointer(file 2, 8192, null, 0)"));
}

TEST_F(AppInfoWalk, AThirdCandidateOfZeroSearchesFromTheFilesBegin) {
  const Header header = {.release = 0x0F, .first = 0x5000, .second = 0x6000, .third = 0};
  EXPECT_TRUE(Read(Bytes(header) + Bytes(block)));
  EXPECT_THAT(world.Calls({"SetFilePointer"}), ElementsAre("SetFilePointer(file 2, 0, null, 0)"));
}

TEST_F(AppInfoWalk, ASentinelBeforeTheOffsetIsNotFound) {
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset + 1}) + Bytes(block) + std::string(5000, '\0')));
}

std::string FileWithBlockBehind(std::size_t gap, const Block& block, char filler = '\0') {
  return Bytes(Header{.first = kOffset}) + std::string(gap, filler) + Bytes(block);
}

TEST_F(AppInfoWalk, ASentinelAnywhereInTheReachIsFound) {
  for (const std::size_t gap : {0u, 1u, 31u, 32u, 33u, 2015u, 2016u, 2047u, 2048u, 2049u, 4063u}) {
    EXPECT_TRUE(Read(FileWithBlockBehind(gap, block))) << gap;
    EXPECT_THAT(heard.words, ElementsAre("count 2", "one", "two")) << gap;
  }
}

TEST_F(AppInfoWalk, ASentinelOneByteFurtherIsNotFound) {
  EXPECT_FALSE(Read(FileWithBlockBehind(4064, block)));
  EXPECT_THAT(heard.words, IsEmpty());
}

TEST_F(AppInfoWalk, ASentinelMuchFurtherIsNotFound) {
  for (const std::size_t gap : {4065u, 4096u, 8000u}) {
    EXPECT_FALSE(Read(FileWithBlockBehind(gap, block))) << gap;
  }
}

TEST_F(AppInfoWalk, ABeginningOfASentinelDoesNotHideTheOneBehindIt) {
  const std::string half = appinfo::Sentinel().substr(0, 17);
  EXPECT_TRUE(Read(Bytes(Header{.first = kOffset}) + half + Bytes(block)));
}

TEST_F(AppInfoWalk, EveryByteOfTheSentinelCounts) {
  for (std::size_t at = 0; at < 32; ++at) {
    std::string file = appinfo::File(block);
    file[kOffset + at] = static_cast<char>(file[kOffset + at] ^ 1);
    EXPECT_FALSE(Read(file)) << at;
  }
}

TEST_F(AppInfoWalk, EveryByteOfTheSentinelCountsWhereverItBegins) {
  for (std::size_t gap = 1; gap < 32; ++gap) {
    for (std::size_t at = 0; at < 32; ++at) {
      std::string file = FileWithBlockBehind(gap, block);
      file[kOffset + gap + at] = static_cast<char>(file[kOffset + gap + at] ^ 1);
      EXPECT_FALSE(Read(file)) << gap << " " << at;
    }
  }
}

TEST_F(AppInfoWalk, OfTwoBlocksTheFirstIsRead) {
  const Block other = {.entries = {{kOtherId, u"other"}}};
  EXPECT_TRUE(Read(appinfo::File(other) + Bytes(block)));
  EXPECT_THAT(heard.words, ElementsAre("count 1", "other"));
}

TEST_F(AppInfoWalk, TheLastByteOfTheReachIsReadBeforeTheSearchEnds) {
  world.files.readSizes = {128, 2048, 2047};
  Read(Bytes(Header{.first = kOffset}) + std::string(6000, '\0'));
  EXPECT_THAT(world.Calls({"ReadFile"}),
              ElementsAre("ReadFile(file 1, 128)", "ReadFile(file 2, 2048)",
                          "ReadFile(file 2, 2048)", "ReadFile(file 2, 2048)"));
}

TEST_F(AppInfoWalk, NothingBehindTheReachIsRead) {
  Read(Bytes(Header{.first = kOffset}) + std::string(9000, '\0'));
  EXPECT_THAT(
      world.Calls({"ReadFile"}),
      ElementsAre("ReadFile(file 1, 128)", "ReadFile(file 2, 2048)", "ReadFile(file 2, 2048)"));
}

TEST_F(AppInfoWalk, AFileThatEndsBeforeThirtyTwoBytesHasNone) {
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset})));
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset}) + appinfo::Sentinel().substr(0, 31)));
  EXPECT_FALSE(Read(Bytes(Header{.first = 0x7FFFFFFF})));
}

TEST_F(AppInfoWalk, ABlockCutAnywhereHasNone) {
  const std::string whole = appinfo::File({.entries = {{kOtherId, u"one"}}});
  for (std::size_t size = kOffset; size < whole.size(); ++size) {
    EXPECT_FALSE(Read(whole.substr(0, size))) << size;
  }
  EXPECT_TRUE(Read(whole));
}

TEST_F(AppInfoWalk, AfterTheFirstFailureNothingMoreIsRead) {
  const std::string whole = appinfo::File({.entries = {{kOtherId, u"one"}}});
  for (std::size_t size = kOffset + 1; size < whole.size(); ++size) {
    world.ForgetCalls();
    Read(whole.substr(0, size));
    // The header, what there is, and the end.
    EXPECT_EQ(world.Count("ReadFile"), 3) << size;
  }
}

TEST_F(AppInfoWalk, TheCountIsToldBeforeAnEntryIsRead) {
  const std::string whole = appinfo::File({.entries = {{kOtherId, u"one"}}});
  const std::size_t entry = Bytes(appinfo::Entry{kOtherId, u"one"}).size();
  EXPECT_FALSE(Read(whole.substr(0, whole.size() - entry)));
  EXPECT_THAT(heard.words, ElementsAre("count 1"));
  EXPECT_FALSE(Read(whole.substr(0, whole.size() - entry - 1)));
  EXPECT_THAT(heard.words, IsEmpty());
}

TEST_F(AppInfoWalk, ACountBeyondTheEntriesFailsAfterThoseThatAreThere) {
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset}) + Bytes(block, 3)));
  EXPECT_THAT(heard.words, ElementsAre("count 3", "one", "two"));
}

TEST_F(AppInfoWalk, TheCountIsUnsigned) {
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset}) + Bytes(block, 0xFFFFFFFF)));
  EXPECT_THAT(heard.words, ElementsAre("count 4294967295", "one", "two"));
}

TEST_F(AppInfoWalk, ACountBelowTheEntriesTellsNoMore) {
  EXPECT_TRUE(Read(Bytes(Header{.first = kOffset}) + Bytes(block, 1)));
  EXPECT_THAT(heard.words, ElementsAre("count 1", "one"));
}

TEST_F(AppInfoWalk, AReadThatFailsEndsTheWalkAndLeavesWhatWasTold) {
  const Block large = {.entries = {{kOtherId, u"one"}, {kOtherId, std::u16string(2000, u'x')}}};
  world.Fail("ReadFile(file 2, 2048)", 5, 2);
  EXPECT_FALSE(Read(appinfo::File(large)));
  EXPECT_THAT(heard.words, ElementsAre("count 2", "one"));
  EXPECT_EQ(world.Count("CloseHandle"), 2);
}

TEST_F(AppInfoWalk, TextsOfBothBuffersAreTold) {
  const Block large = {
      .entries = {{kOtherId, std::u16string(1023, u'x')}, {kOtherId, std::u16string(1024, u'y')}}};
  EXPECT_TRUE(Read(appinfo::File(large)));
  EXPECT_THAT(heard.words, ElementsAre("count 2", std::string(1023, 'x'), std::string(1024, 'y')));
}

}  // namespace

// The header reader on files on disk, through the system's own calls.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/System.h"
#include "properties/appinfo/AppInfoReader.h"
#include "properties/appinfo/DwgHeader.h"
#include "support/Paths.h"
#include "support/Process.h"
#include "support/Scratch.h"
#include "support/appinfo/AppInfoFile.h"
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

class FilesOnDisk : public testing::Test {
 protected:
  FilesOnDisk()
      : previous_(os::InstallFileProvider(files_.get())), open_(zdx_test::CountOpenFiles()) {}
  ~FilesOnDisk() override {
    EXPECT_EQ(zdx_test::CountOpenFiles(), open_);
    os::InstallFileProvider(previous_);
  }

  bool Read(const std::string& bytes, const std::string& name = "a.dwg") {
    return ReadAt(folder_.Write(name, bytes));
  }
  bool ReadAt(const std::filesystem::path& path) {
    const std::wstring wide = zdx_test::NameOf(path);
    kind = ZDXEngine::LocateAppInfo(wide, offset);
    heard = {};
    return ZDXEngine::ReadAppInfo(wide, heard);
  }
  const std::filesystem::path& Folder() const { return folder_.path(); }
  bool TakesName(const char* name) const { return folder_.Takes(name); }

  std::uint32_t offset = 0;
  ZDXEngine::DwgHeaderKind kind = ZDXEngine::kDwgHeaderNone;
  appinfo::Heard heard;
  const Block block = {.entries = {{kOtherId, u"one"}, {kSummaryId, u"two"}}};

 private:
  std::unique_ptr<os::FileProvider> files_ = zdx::MakeSystemFiles();
  os::FileProvider* previous_;
  std::size_t open_;
  zdx_test::ScratchFolder folder_;
};

TEST_F(FilesOnDisk, EarlyMagicsHaveAKindAndNoBlock) {
  const std::pair<const char*, int> kinds[] = {{"AC1012", 1}, {"AC1014", 2}, {"AC1015", 3}};
  for (const auto& [magic, expectedKind] : kinds) {
    EXPECT_FALSE(Read(Bytes(Header{.magic = magic, .first = kOffset}) + Bytes(block))) << magic;
    EXPECT_EQ(kind, expectedKind) << magic;
    EXPECT_EQ(offset, 0u) << magic;
  }
}

TEST_F(FilesOnDisk, LateMagicsHaveNeither) {
  for (const char* magic : {"AC1027", "AC1032", "AC701A"}) {
    EXPECT_FALSE(Read(Bytes(Header{.magic = magic, .first = kOffset}) + Bytes(block))) << magic;
    EXPECT_EQ(kind, 0) << magic;
  }
}

TEST_F(FilesOnDisk, TheSearchBeginsAtTheLargerCandidate) {
  const Header header = {.magic = "AC1018", .release = 0x0F, .first = 0x2000, .second = 0x1000};
  EXPECT_TRUE(Read(WithBytesAt(Bytes(header), 0x2000, Bytes(block))));
  EXPECT_THAT(heard.words, ElementsAre("count 2", "one", "two"));
}

TEST_F(FilesOnDisk, TheReleaseDecidesBetweenTheCandidates) {
  for (const char* magic : {"AC1021", "AC701a", "AC1024"}) {
    const Header below = {.magic = magic, .release = 0x0E, .first = 0x2000, .third = 0x9000};
    EXPECT_TRUE(Read(WithBytesAt(Bytes(below), 0x2000, Bytes(block)))) << magic;
    const Header from = {.magic = magic, .release = 0x0F, .first = 0x9000, .third = 0x2000};
    EXPECT_TRUE(Read(WithBytesAt(Bytes(from), 0x2000, Bytes(block)))) << magic;
  }
}

TEST_F(FilesOnDisk, AThirdCandidateOfZeroSearchesFromTheFilesBegin) {
  EXPECT_TRUE(Read(Bytes(Header{.release = 0x0F, .first = 0x9000}) + Bytes(block)));
}

TEST_F(FilesOnDisk, AnOffsetWithItsTopBitSetIsNotReached) {
  EXPECT_FALSE(Read(Bytes(Header{.first = 0x80000000, .second = 0x7FFFFFFF}) + Bytes(block)));
  EXPECT_EQ(offset, 0x80000000u);
}

TEST_F(FilesOnDisk, AnOffsetBehindTheEndFindsNothing) {
  EXPECT_FALSE(Read(Bytes(Header{.first = 0x7FFFFFFF}) + Bytes(block)));
}

TEST_F(FilesOnDisk, TheReachEndsAfterItsLastPlace) {
  const std::string header = Bytes(Header{.first = kOffset});
  EXPECT_TRUE(Read(header + Bytes(block)));
  EXPECT_TRUE(Read(header + std::string(4063, '\0') + Bytes(block)));
  EXPECT_FALSE(Read(header + std::string(4064, '\0') + Bytes(block)));
}

TEST_F(FilesOnDisk, AFileThatEndsBeforeThirtyTwoBytesHasNone) {
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset}) + appinfo::Sentinel().substr(0, 31)));
}

TEST_F(FilesOnDisk, ABlockWithoutEntriesIsFound) {
  EXPECT_TRUE(Read(appinfo::File({})));
  EXPECT_THAT(heard.words, ElementsAre("count 0"));
}

TEST_F(FilesOnDisk, ACountBeyondTheEntriesFailsAfterThoseThatAreThere) {
  EXPECT_FALSE(Read(Bytes(Header{.first = kOffset}) + Bytes(block, 3)));
  EXPECT_THAT(heard.words, ElementsAre("count 3", "one", "two"));
}

TEST_F(FilesOnDisk, TwoEntriesOfOneIdAreBothTold) {
  EXPECT_TRUE(Read(appinfo::File({.entries = {{kOtherId, u"one"}, {kOtherId, u"two"}}})));
  EXPECT_THAT(heard.words, ElementsAre("count 2", "one", "two"));
}

TEST_F(FilesOnDisk, TextsOfBothBuffersAreTold) {
  EXPECT_TRUE(Read(appinfo::File({.entries = {{kOtherId, std::u16string(1023, u'x')},
                                              {kOtherId, std::u16string(1024, u'y')}}})));
  EXPECT_THAT(heard.words, ElementsAre("count 2", std::string(1023, 'x'), std::string(1024, 'y')));
}

TEST_F(FilesOnDisk, AnEmptyFileAndOneOfAMagicAloneHaveNone) {
  EXPECT_FALSE(Read(""));
  EXPECT_EQ(kind, 0);
  EXPECT_FALSE(Read("AC1024"));
  EXPECT_EQ(kind, 5);
}

TEST_F(FilesOnDisk, AFolderAndAMissingFileHaveNone) {
  EXPECT_FALSE(ReadAt(Folder()));
  EXPECT_FALSE(ReadAt(Folder() / "missing.dwg"));
  EXPECT_THAT(heard.words, IsEmpty());
}

TEST_F(FilesOnDisk, AFileOfAnyNameIsRead) {
  EXPECT_TRUE(Read(appinfo::File(block), "Grundri\u00DF \u4E2D.dwg"));
}

TEST_F(FilesOnDisk, AFileWhoseNameIsNoTextIsRead) {
  if (!TakesName("not text \xFF.dwg")) GTEST_SKIP() << "no file can have such a name here";
  EXPECT_TRUE(Read(appinfo::File(block), "not text \xFF.dwg"));
}

}  // namespace

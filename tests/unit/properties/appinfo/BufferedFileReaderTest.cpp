// The reader that walks a file through its buffer: bytes and ids.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>
#include <optional>

#include "properties/appinfo/BufferedFileReader.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Bytes of which none equals its neighbours or the one a buffer later.
std::string Pattern(std::size_t size) {
  std::string bytes(size, '\0');
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<char>((i * 7 + i / 256) & 0xFF);
  return bytes;
}

class BufferedFileReader : public scripted::ScriptedTest {
 protected:
  ZDXEngine::BufferedFileReader& Open(const std::string& bytes, std::uint32_t offset = 0) {
    world.files.contents[L"a.dwg"] = bytes;
    return reader.emplace(L"a.dwg", offset);
  }
  // What came; "-" in front if the read failed.
  std::string Read(std::uint32_t count) {
    std::string bytes(count, '.');
    const bool done = reader->ReadBytes(bytes.data(), count);
    return done ? bytes : "-" + bytes;
  }

  std::optional<ZDXEngine::BufferedFileReader> reader;
};

TEST_F(BufferedFileReader, OpensTheFileAndGoesToTheOffset) {
  Open("abc", 2);
  EXPECT_THAT(world.Calls(), ElementsAre("CreateFileW(a.dwg, 0x80000000, 3, null, 3, 0x80, null)",
                                         "SetFilePointer(file 1, 2, null, 0)"));
  EXPECT_EQ(Read(1), "c");
}

TEST_F(BufferedFileReader, ClosesTheFileInTheEnd) {
  Open("abc");
  EXPECT_EQ(world.Count("CloseHandle"), 0);
  reader.reset();
  EXPECT_THAT(world.Calls({"CloseHandle"}), ElementsAre("CloseHandle(file 1)"));
}

TEST_F(BufferedFileReader, AFileThatCannotBeOpenedFailsAtTheFirstRead) {
  reader.emplace(L"missing.dwg", 0);
  EXPECT_EQ(Read(1), "-.");
  EXPECT_EQ(world.Count("SetFilePointer"), 0);
  reader.reset();
  EXPECT_EQ(world.Count("CloseHandle"), 0);
}

TEST_F(BufferedFileReader, AnOffsetThatCannotBeReachedClosesTheFileAtOnce) {
  world.Fail("SetFilePointer", 5);
  Open("abc", 1);
  EXPECT_EQ(world.Count("CloseHandle"), 1);
  EXPECT_EQ(Read(1), "-.");
  EXPECT_EQ(world.Count("ReadFile"), 0);
}

TEST_F(BufferedFileReader, AnOffsetWithItsTopBitSetIsANegativeDistance) {
  Open("abc", 0x80000000);
  EXPECT_THAT(world.Calls({"SetFilePointer"}),
              ElementsAre("SetFilePointer(file 1, -2147483648, null, 0)"));
  EXPECT_EQ(Read(1), "-.");
}

TEST_F(BufferedFileReader, TheLastOffsetOfAllIsADistanceThatFails) {
  Open("abc", 0xFFFFFFFF);
  EXPECT_THAT(world.Calls({"SetFilePointer"}), ElementsAre("SetFilePointer(file 1, -1, null, 0)"));
  EXPECT_EQ(Read(1), "-.");
}

TEST_F(BufferedFileReader, NothingIsReadBeforeItIsAsked) {
  Open("abc");
  EXPECT_EQ(world.Count("ReadFile"), 0);
}

TEST_F(BufferedFileReader, ReadsTwoThousandFortyEightBytesAtATime) {
  Open(Pattern(3000));
  Read(1);
  EXPECT_THAT(world.Calls({"ReadFile"}), ElementsAre("ReadFile(file 1, 2048)"));
}

TEST_F(BufferedFileReader, WhatTheBufferHoldsIsNotReadAgain) {
  Open("abcdef");
  EXPECT_EQ(Read(2), "ab");
  EXPECT_EQ(Read(3), "cde");
  EXPECT_EQ(Read(1), "f");
  EXPECT_EQ(world.Count("ReadFile"), 1);
}

TEST_F(BufferedFileReader, AReadOfExactlyTheRestDoesNotRefill) {
  Open(Pattern(4096));
  Read(2000);
  EXPECT_EQ(Read(48), Pattern(4096).substr(2000, 48));
  EXPECT_EQ(world.Count("ReadFile"), 1);
}

TEST_F(BufferedFileReader, AReadAcrossTheBuffersEndIsWhole) {
  Open(Pattern(5000));
  Read(2000);
  EXPECT_EQ(Read(100), Pattern(5000).substr(2000, 100));
  EXPECT_EQ(world.Count("ReadFile"), 2);
}

TEST_F(BufferedFileReader, AReadOfManyBuffersIsWhole) {
  Open(Pattern(10000));
  EXPECT_EQ(Read(1), Pattern(1));
  EXPECT_EQ(Read(9000), Pattern(10000).substr(1, 9000));
  EXPECT_EQ(world.Count("ReadFile"), 5);
}

TEST_F(BufferedFileReader, ShortReadsArePutTogether) {
  world.files.readSizes = {1, 2, 1, 1};
  Open("abcdef");
  EXPECT_EQ(Read(5), "abcde");
  EXPECT_EQ(world.Count("ReadFile"), 4);
  EXPECT_EQ(Read(1), "f");
}

TEST_F(BufferedFileReader, BytesBeyondTheEndFailAndThoseBeforeAreThere) {
  Open("abc");
  EXPECT_EQ(Read(5), "-abc..");
}

TEST_F(BufferedFileReader, AnEndOfFileLeavesTheFileOpenAndIsAskedAgain) {
  Open("abc");
  Read(4);
  EXPECT_EQ(world.Count("CloseHandle"), 0);
  Read(1);
  EXPECT_EQ(world.Count("ReadFile"), 3);
}

TEST_F(BufferedFileReader, ZeroBytesAreAlwaysThere) {
  reader.emplace(L"missing.dwg", 0);
  EXPECT_TRUE(reader->ReadBytes(nullptr, 0));
  Open("abc");
  EXPECT_TRUE(reader->ReadBytes(nullptr, 0));
  EXPECT_EQ(world.Count("ReadFile"), 0);
}

TEST_F(BufferedFileReader, AFailedReadClosesTheFileAtOnce) {
  world.Fail("ReadFile", 5, 2);
  Open(Pattern(5000));
  Read(2048);
  EXPECT_EQ(world.Count("CloseHandle"), 0);
  EXPECT_EQ(Read(1), "-.");
  EXPECT_EQ(world.Count("CloseHandle"), 1);
}

TEST_F(BufferedFileReader, AfterAFailedReadEveryOtherFailsUnasked) {
  world.Fail("ReadFile", 5, 1);
  Open("abc");
  Read(1);
  EXPECT_EQ(Read(1), "-.");
  EXPECT_EQ(Read(2), "-..");
  EXPECT_EQ(world.Count("ReadFile"), 1);
  EXPECT_TRUE(reader->ReadBytes(nullptr, 0));
}

TEST_F(BufferedFileReader, WhatAFailedReadCountsIsNotTaken) {
  world.files.countOfFailedRead = 7;
  world.Fail("ReadFile", 5, 1);
  Open("abc");
  EXPECT_EQ(Read(2), "-..");
  EXPECT_EQ(Read(1), "-.");
}

TEST_F(BufferedFileReader, AnyAnswerOfAReadButZeroIsASuccess) {
  world.files.readAnswer = -2;
  Open("abc");
  EXPECT_EQ(Read(3), "abc");
}

TEST_F(BufferedFileReader, AFailedReadKeepsTheBytesThatWereThere) {
  world.Fail("ReadFile", 5, 2);
  Open(Pattern(5000));
  Read(2046);
  const std::string rest = Pattern(5000).substr(2046, 2);
  EXPECT_EQ(Read(4), "-" + rest + "..");
}

TEST_F(BufferedFileReader, AnIdIsReadFieldByField) {
  Open(appinfo::IdBytes(appinfo::kOtherId));
  GUID id = {};
  EXPECT_TRUE(reader->ReadGuid(id));
  EXPECT_EQ(id, appinfo::kOtherId);
}

TEST_F(BufferedFileReader, AnIdKeepsTheTopBitsOfItsFields) {
  const GUID high = {0xFEDCBA98, 0xFFFE, 0x8001, {0xFF, 0x80, 0, 1, 2, 3, 4, 0xFF}};
  Open(appinfo::IdBytes(high));
  GUID id = {};
  EXPECT_TRUE(reader->ReadGuid(id));
  EXPECT_EQ(id, high);
}

TEST_F(BufferedFileReader, AnIdCutAnywhereLeavesTheResultAlone) {
  for (std::size_t size = 0; size < 16; ++size) {
    Open(appinfo::IdBytes(appinfo::kOtherId).substr(0, size));
    GUID id = appinfo::kSummaryId;
    EXPECT_FALSE(reader->ReadGuid(id)) << size;
    EXPECT_EQ(id, appinfo::kSummaryId) << size;
  }
}

}  // namespace

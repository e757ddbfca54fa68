#include <gtest/gtest.h>

#include "backends/database/dwg/container/Decompression.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using namespace std::string_literals;
using handmade::Noise;

constexpr std::size_t kMostPaged = 1 << 20;
const std::string kEnd = "\x11\0\0"s;

std::string WholePaged(const std::string& stream, std::size_t most = kMostPaged) {
  Decompressed result = DecompressPaged(stream, most);
  EXPECT_TRUE(result.whole);
  return std::move(result.bytes);
}

// What is left of a damaged stream.
std::string RestPaged(const std::string& stream, std::size_t most = kMostPaged) {
  Decompressed result = DecompressPaged(stream, most);
  EXPECT_FALSE(result.whole);
  return std::move(result.bytes);
}

// A run of literals by its shortest opcode.
std::string RunOf(const std::string& bytes) {
  std::string stream;
  if (bytes.size() <= 18) {
    stream.push_back(static_cast<char>(bytes.size() - 3));
  } else {
    std::size_t more = bytes.size() - 18;
    stream.push_back('\0');
    for (; more > 255; more -= 255) stream.push_back('\0');
    stream.push_back(static_cast<char>(more));
  }
  return stream + bytes;
}

TEST(DecompressPaged, ALiteralOpcodeHasThreeMoreThanItSays) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd" +
                       kEnd),
            "abcd");
  EXPECT_EQ(WholePaged("\x0F"
                       "abcdefghijklmnopqr" +
                       kEnd),
            "abcdefghijklmnopqr");
}

TEST(DecompressPaged, ALongRunHas18AndWhatTheBytesBehindSay) {
  const std::string short19 = Noise(19);
  EXPECT_EQ(WholePaged("\0\x01"s + short19 + kEnd), short19);
  const std::string long528 = Noise(18 + 255 + 255);
  EXPECT_EQ(WholePaged("\0\0\xFF"s + long528 + kEnd), long528);
  const std::string long529 = Noise(18 + 2 * 255 + 1);
  EXPECT_EQ(WholePaged("\0\0\0\x01"s + long529 + kEnd), long529);
}

// Opcode 0x40 to 0xFF: length (op >> 4) - 1, distance low part in bits 2 and 3, literals in 0
// and 1.
TEST(DecompressPaged, AShortCopyTellsAllInTwoBytes) {
  EXPECT_EQ(WholePaged("\x05"
                       "abcdefgh"
                       "\x40\x01" +
                       kEnd),
            "abcdefghdef");
  EXPECT_EQ(WholePaged("\x05"
                       "abcdefgh"
                       "\xFC\x01" +
                       kEnd),
            "abcdefghabcdefghabcdef");
}

TEST(DecompressPaged, AShortCopyReachesBack1024) {
  const std::string before = Noise(1024);
  EXPECT_EQ(WholePaged(RunOf(before) + "\x4C\xFF" + kEnd), before + before.substr(0, 3));
}

// Opcode 0x20 to 0x3F: length of 5 bits and 2, distance of 14 bits and 1.
TEST(DecompressPaged, AMiddleCopyHasItsDistanceInTwoBytes) {
  EXPECT_EQ(WholePaged("\x05"
                       "abcdefgh"
                       "\x21\x1C\x00"s +
                       kEnd),
            "abcdefghabc");
  EXPECT_EQ(WholePaged("\x05"
                       "abcdefgh"
                       "\x3F\x00\x00"s +
                       kEnd),
            "abcdefgh" + std::string(33, 'h'));
}

TEST(DecompressPaged, AMiddleCopyReachesBack16384) {
  const std::string before = Noise(16384);
  EXPECT_EQ(WholePaged(RunOf(before) + "\x22\xFC\xFF" + kEnd), before + before.substr(0, 4));
}

TEST(DecompressPaged, ALongMiddleCopyHas33AndItsLengthBeforeItsDistance) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x20\x05\x00\x00"s +
                       kEnd),
            "abc" + std::string(39, 'd'));
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x20\x00\x00\x02\x0C\x00"s +
                       kEnd)
                .size(),
            4u + 33 + 255 + 255 + 2);
}

// Opcode 0x12 to 0x17: length of 3 bits and 2, distance of 14 bits and 0x4000.
TEST(DecompressPaged, AFarCopyBeginsAt0x4000Back) {
  const std::string before = Noise(0x4000 + 5);
  EXPECT_EQ(WholePaged(RunOf(before) + "\x12\x00\x00"s + kEnd), before + before.substr(5, 4));
  EXPECT_EQ(WholePaged(RunOf(before) + "\x17\x14\x00"s + kEnd), before + before.substr(0, 9));
}

TEST(DecompressPaged, ALongFarCopyHasNineAndItsLengthBeforeItsDistance) {
  const std::string before = Noise(0x4000);
  EXPECT_EQ(WholePaged(RunOf(before) + "\x10\x01\x00\x00"s + kEnd), before + before.substr(0, 10));
  EXPECT_EQ(WholePaged(RunOf(before) + "\x10\x00\x02\x00\x00"s + kEnd),
            before + before.substr(0, 266));
}

// Bit 3 of the opcode is worth 0x4000 of the distance.
TEST(DecompressPaged, TheFarthestCopiesBeginAt0x8000Back) {
  const std::string before = Noise(0x8000 + 3);
  EXPECT_EQ(WholePaged(RunOf(before) + "\x1A\x0C\x00"s + kEnd), before + before.substr(0, 4));
  EXPECT_EQ(WholePaged(RunOf(before) + "\x18\x01\x00\x00"s + kEnd), before + before.substr(3, 10));
}

TEST(DecompressPaged, ACopyMayOverlapItself) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\xF4\x00"s +
                       kEnd),
            "abcdcdcdcdcdcdcdcd");
}

TEST(DecompressPaged, UpToThreeLiteralsMayFollowACopy) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x43\x00"
                       "xyz"s +
                       kEnd),
            "abcddddxyz");
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x21\x01\x00"
                       "x"s +
                       kEnd),
            "abcddddx");
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x42\x00"
                       "xy"
                       "\x40\x00"s +
                       kEnd),
            "abcddddxyyyy");
}

TEST(DecompressPaged, ARunMayFollowACopyWithoutLiterals) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x40\x00\x02"
                       "vwxyz"s +
                       kEnd),
            "abcddddvwxyz");
}

TEST(DecompressPaged, WhatFollowsTheEndIsNotRead) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd" +
                       kEnd +
                       "\x01"
                       "efgh"),
            "abcd");
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x11"),
            "abcd");
}

TEST(DecompressPaged, AStreamWithoutItsEndIsDamagedAndKeptSoFar) {
  EXPECT_EQ(RestPaged(""), "");
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"),
            "abcd");
  EXPECT_EQ(RestPaged("\x01"
                      "ab"),
            "ab");
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x40\x00"s),
            "abcdddd");
}

TEST(DecompressPaged, AnInstructionCutAnywhereIsDamage) {
  for (const std::string& instruction : {"\x40"s, "\x22"s, "\x22\0"s, "\x20"s, "\x20\0\0"s,
                                         "\x20\x01"s, "\x12"s, "\x12\0"s, "\x10\x01\0"s}) {
    EXPECT_EQ(RestPaged("\x01"
                        "abcd" +
                        instruction),
              "abcd");
  }
  EXPECT_EQ(RestPaged("\0\0\0\0"s), "");
}

TEST(DecompressPaged, ACopyFromBeforeTheStartIsDamage) {
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x40\x01" +
                      kEnd),
            "abcd");
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x21\x10\x00"s +
                      kEnd),
            "abcd");
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x12\x00\x00"s +
                      kEnd),
            "abcd");
  EXPECT_EQ(RestPaged("\x40\x00"s + kEnd), "");
}

TEST(DecompressPaged, MoreThanAllowedIsDamage) {
  EXPECT_EQ(WholePaged("\x01"
                       "abcd" +
                           kEnd,
                       4),
            "abcd");
  EXPECT_EQ(RestPaged("\x02"
                      "abcde" +
                          kEnd,
                      4),
            "");
  EXPECT_EQ(WholePaged("\x01"
                       "abcd"
                       "\x40\x00"s +
                           kEnd,
                       7),
            "abcdddd");
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x40\x00"s +
                          kEnd,
                      6),
            "abcd");
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x41\x00x"s +
                          kEnd,
                      7),
            "abcdddd");
}

TEST(DecompressPaged, ALengthOfMegabytesAllocatesNoMoreThanAllowed) {
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x20" +
                          std::string(100000, '\0') + "\x01\0\0"s + kEnd,
                      0x7400),
            "abcd");
}

// Literals of a copy are followed by an opcode, never by a run.
TEST(DecompressPaged, ARunBehindTheLiteralsOfACopyIsDamage) {
  EXPECT_EQ(RestPaged("\x01"
                      "abcd"
                      "\x41\x00"
                      "x"
                      "\x02"
                      "vwxyz"s +
                      kEnd),
            "abcddddx");
}

}  // namespace
}  // namespace zdx::dwg

// How a file is classified, and where its header leads.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "properties/appinfo/DwgHeader.h"
#include "support/appinfo/AppInfoFile.h"
#include "support/scripted/ScriptedTest.h"

using appinfo::Bytes;
using appinfo::Header;
using testing::ElementsAre;
using ZDXEngine::DwgHeaderKind;

namespace {

constexpr std::uint32_t kStale = 77;

class DwgHeader : public scripted::ScriptedTest {
 protected:
  DwgHeaderKind Locate(const std::string& bytes) {
    world.files.contents[L"a.dwg"] = bytes;
    offset = kStale;
    return ZDXEngine::LocateAppInfo(L"a.dwg", offset);
  }
  DwgHeaderKind Locate(const Header& header) { return Locate(Bytes(header)); }

  std::uint32_t offset = kStale;
};

TEST_F(DwgHeader, EveryKindHasItsValue) {
  EXPECT_EQ(ZDXEngine::kDwgHeaderNone, 0);
  EXPECT_EQ(ZDXEngine::kDwgHeader1012, 1);
  EXPECT_EQ(ZDXEngine::kDwgHeader1014, 2);
  EXPECT_EQ(ZDXEngine::kDwgHeader1015, 3);
  EXPECT_EQ(ZDXEngine::kDwgHeader1018, 4);
  EXPECT_EQ(ZDXEngine::kDwgHeader1021, 5);
}

TEST_F(DwgHeader, EveryMagicHasItsKind) {
  const std::pair<const char*, int> kinds[] = {{"AC1012", 1}, {"AC1014", 2}, {"AC1015", 3},
                                               {"AC1018", 4}, {"AC1021", 5}, {"AC701a", 5},
                                               {"AC1024", 5}};
  for (const auto& [magic, kind] : kinds) EXPECT_EQ(Locate(Header{.magic = magic}), kind) << magic;
}

TEST_F(DwgHeader, AnyOtherMagicIsNone) {
  for (const char* magic :
       {"AC1027", "AC1032", "AC1009", "AC701A", "ac1024", "AC102", "XC1024", "", "AC1013"}) {
    EXPECT_EQ(Locate(Header{.magic = magic, .first = 5}), 0) << magic;
    EXPECT_EQ(offset, 0u) << magic;
  }
}

TEST_F(DwgHeader, TheSeventhByteIsNotLookedAt) { EXPECT_EQ(Locate(Header{.magic = "AC1018X"}), 4); }

TEST_F(DwgHeader, AnEarlyKindHasNoOffset) {
  for (const char* magic : {"AC1012", "AC1014", "AC1015"}) {
    Locate(Header{.magic = magic, .release = 0x0F, .first = 5, .second = 6, .third = 7});
    EXPECT_EQ(offset, 0u) << magic;
  }
}

TEST_F(DwgHeader, TheOffsetOf1018IsTheLargerCandidate) {
  Locate(Header{.magic = "AC1018", .first = 0x2000, .second = 0x1000, .third = 0x9000});
  EXPECT_EQ(offset, 0x2000u);
  Locate(Header{.magic = "AC1018", .first = 0x1000, .second = 0x3000, .third = 0x9000});
  EXPECT_EQ(offset, 0x3000u);
}

TEST_F(DwgHeader, TheReleasePlaysNoPartIn1018) {
  Locate(Header{.magic = "AC1018", .release = 0x0F, .first = 0x2000, .third = 0x9000});
  EXPECT_EQ(offset, 0x2000u);
}

TEST_F(DwgHeader, BelowTheReleaseTheOffsetOfALaterKindIsTheLargerCandidate) {
  for (const char* magic : {"AC1021", "AC701a", "AC1024"}) {
    Locate(Header{.magic = magic, .release = 0x0E, .first = 1, .second = 2, .third = 9});
    EXPECT_EQ(offset, 2u) << magic;
    Locate(Header{.magic = magic, .release = 0, .first = 3, .second = 2, .third = 9});
    EXPECT_EQ(offset, 3u) << magic;
  }
}

TEST_F(DwgHeader, FromTheReleaseOnTheOffsetOfALaterKindIsTheThirdCandidate) {
  for (const char* magic : {"AC1021", "AC701a", "AC1024"}) {
    for (const int release : {0x0F, 0x10, 0xFF}) {
      Locate(Header{.magic = magic,
                    .release = static_cast<std::uint8_t>(release),
                    .first = 9,
                    .second = 8,
                    .third = 2});
      EXPECT_EQ(offset, 2u) << magic << " " << release;
    }
  }
}

TEST_F(DwgHeader, AThirdCandidateOfZeroHolds) {
  Locate(Header{.release = 0x0F, .first = 9, .second = 8, .third = 0});
  EXPECT_EQ(offset, 0u);
}

TEST_F(DwgHeader, CandidatesAreComparedWithoutASign) {
  Locate(Header{.first = 0x80000000, .second = 0x7FFFFFFF});
  EXPECT_EQ(offset, 0x80000000u);
}

TEST_F(DwgHeader, EachByteOfACandidateCounts) {
  Locate(Header{.first = 0x04030201});
  EXPECT_EQ(offset, 0x04030201u);
}

TEST_F(DwgHeader, TheFileIsOpenedReadOnceAndClosed) {
  Locate(Header{});
  EXPECT_THAT(world.Calls(), ElementsAre("CreateFileW(a.dwg, 0x80000000, 3, null, 3, 0x80, null)",
                                         "ReadFile(file 1, 128)", "CloseHandle(file 1)"));
}

TEST_F(DwgHeader, AFileThatCannotBeOpenedIsNone) {
  EXPECT_EQ(ZDXEngine::LocateAppInfo(L"missing.dwg", offset), 0);
  EXPECT_EQ(offset, 0u);
  EXPECT_EQ(world.Count("ReadFile"), 0);
  EXPECT_EQ(world.Count("CloseHandle"), 0);
}

TEST_F(DwgHeader, AFileThatCannotBeReadIsNoneAndClosed) {
  world.Fail("ReadFile", 5);
  EXPECT_EQ(Locate(Header{.first = 9}), 0);
  EXPECT_EQ(offset, 0u);
  EXPECT_EQ(world.Count("CloseHandle"), 1);
}

TEST_F(DwgHeader, AnyAnswerOfTheReadButZeroIsASuccess) {
  world.files.readAnswer = -2;
  EXPECT_EQ(Locate(Header{.magic = "AC1018", .first = 9}), 4);
  EXPECT_EQ(offset, 9u);
}

TEST_F(DwgHeader, HowManyBytesCameIsNotLookedAt) {
  EXPECT_EQ(Locate(std::string("AC1018")), 4);
  EXPECT_EQ(offset, 0u);
}

TEST_F(DwgHeader, WhatAShortFileLacksCountsAsZero) {
  const std::string bytes = Bytes(Header{.first = 0x50, .second = 0x60}).substr(0, 0x11);
  EXPECT_EQ(Locate(bytes), 5);
  EXPECT_EQ(offset, 0x50u);
}

TEST_F(DwgHeader, AnEmptyFileIsNone) { EXPECT_EQ(Locate(std::string()), 0); }

}  // namespace

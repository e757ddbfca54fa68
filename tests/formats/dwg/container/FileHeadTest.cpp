#include <gtest/gtest.h>

#include "backends/database/dwg/container/FileHead.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

TEST(FileHead, HasItsWordsAtTheirPlaces) {
  std::string bytes = handmade::Padded("AC1018", 28);
  bytes[11] = 6;
  bytes.replace(13, 4, handmade::Low32(0x12345678));
  bytes.replace(19, 2, handmade::Low16(30));
  bytes.replace(24, 4, handmade::Low32(2));
  const auto head = ReadFileHead(bytes);
  ASSERT_TRUE(head);
  EXPECT_EQ(head->maintenance, 6);
  EXPECT_EQ(head->previewAddress, 0x12345678u);
  EXPECT_EQ(head->codePage, 30);
  EXPECT_EQ(head->protection, 2u);
}

TEST(FileHead, OfTooFewBytesIsNone) {
  EXPECT_FALSE(ReadFileHead(std::string(27, 'x')));
  EXPECT_FALSE(ReadFileHead(""));
}

TEST(CodePageByNumber, KnowsThePagesThatFilesHave) {
  EXPECT_EQ(CodePageByNumber(28)->page, 1250);
  EXPECT_EQ(CodePageByNumber(29)->page, 1251);
  EXPECT_EQ(CodePageByNumber(30)->page, kWestern);
  EXPECT_EQ(CodePageByNumber(34)->page, 1255);
  EXPECT_EQ(CodePageByNumber(39)->page, 936);
}

TEST(CodePageByNumber, KnowsTheRowsOfIsoAndOldSystems) {
  for (std::uint16_t part = 1; part <= 9; ++part) {
    EXPECT_EQ(CodePageByNumber(static_cast<std::uint16_t>(part + 1))->page, 28590 + part);
  }
  constexpr int kOld[] = {437, 850, 852, 855, 857, 860, 861, 863, 864, 865, 869, 932};
  std::uint16_t number = 11;
  for (const int page : kOld) EXPECT_EQ(CodePageByNumber(number++)->page, page);
}

TEST(CodePageByNumber, HasNothingForNumbersOutsideOfTheList) {
  for (const unsigned number : {0u, 43u, 45u, 0x1E00u, 0xFFFFu}) {
    EXPECT_EQ(CodePageByNumber(static_cast<std::uint16_t>(number)), nullptr) << number;
  }
}

}  // namespace
}  // namespace zdx::dwg

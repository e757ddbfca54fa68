#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/container/FlatContainer.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Low16;
using handmade::Low32;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string kMark("\x95\xA0\x4E\x28\x99\x82\x1A\xE5\x5E\x41\xE0\x5F\x9D\x3A\x4D\x00", 16);

struct Locator {
  unsigned number;
  std::uint32_t address;
  std::uint32_t size;
};

// The head with those locators, and bytes up to 0x100.
std::string File(const std::vector<Locator>& locators, std::uint32_t preview = 0) {
  std::string bytes = handmade::Padded("AC1015", 21);
  bytes.replace(13, 4, Low32(preview));
  bytes += Low32(locators.size());
  for (const Locator& locator : locators) {
    bytes += static_cast<char>(locator.number) + Low32(locator.address) + Low32(locator.size);
  }
  bytes += Low16(handmade::SlowCrc16(bytes)) + kMark;
  return bytes + handmade::Noise(0x100 - bytes.size());
}

const std::vector<Locator> kThree = {{0, 0x80, 0x10}, {1, 0x90, 0x20}, {2, 0xB0, 0x50}};

Opened OpenedFlat(const std::string& bytes) { return Opened(OpenFlat, bytes); }

TEST(FlatContainer, SectionsStandWhereTheLocatorsSay) {
  const std::string bytes = File(kThree);
  Opened file = OpenedFlat(bytes);
  EXPECT_EQ(file.All(SectionId::kHeader), bytes.substr(0x80, 0x10));
  EXPECT_EQ(file.All(SectionId::kClasses), bytes.substr(0x90, 0x20));
  EXPECT_EQ(file.All(SectionId::kObjectMap), bytes.substr(0xB0, 0x50));
  EXPECT_THAT(file.Warnings(), IsEmpty());
}

TEST(FlatContainer, TheObjectsAreTheWholeFile) {
  const std::string bytes = File(kThree);
  EXPECT_EQ(OpenedFlat(bytes).All(SectionId::kObjects), bytes);
}

TEST(FlatContainer, TellsWhereAByteStands) {
  Opened file = OpenedFlat(File(kThree));
  EXPECT_EQ(file.container().Find(SectionId::kClasses)->PlaceOf(3), 0x93u);
}

TEST(FlatContainer, BytesBehindASectionAreNotGiven) {
  Opened file = OpenedFlat(File(kThree));
  EXPECT_TRUE(file.Part(SectionId::kHeader, 0x10, 0));
  EXPECT_FALSE(file.Part(SectionId::kHeader, 0x0F, 2));
  EXPECT_FALSE(file.Part(SectionId::kHeader, 0x11, 0));
  EXPECT_FALSE(file.Part(SectionId::kHeader, 1, ~std::uint64_t{0}));
}

TEST(FlatContainer, ThePreviewBeginsAtItsAddress) {
  const std::string bytes = File(kThree, 0xC0);
  EXPECT_EQ(OpenedFlat(bytes).Part(SectionId::kPreview, 0, 8), bytes.substr(0xC0, 8));
  EXPECT_EQ(OpenedFlat(File(kThree)).container().Find(SectionId::kPreview), nullptr);
}

TEST(FlatContainer, APreviewOutsideOfTheFileIsTold) {
  Opened file = OpenedFlat(File(kThree, 0x100));
  EXPECT_EQ(file.container().Find(SectionId::kPreview), nullptr);
  ASSERT_EQ(file.Warnings().size(), 1u);
  EXPECT_EQ(file.report().warnings[0].offset, 13u);
}

TEST(FlatContainer, ASectionOutsideOfTheFileCostsOnlyItself) {
  for (const Locator& classes :
       {Locator{1, 0x90, 0x71}, Locator{1, 0x101, 0}, Locator{1, 0xFFFFFFFF, 0xFFFFFFFF}}) {
    Opened file = OpenedFlat(File({kThree[0], classes, kThree[2]}));
    EXPECT_TRUE(file.All(SectionId::kHeader));
    EXPECT_EQ(file.container().Find(SectionId::kClasses), nullptr);
    EXPECT_TRUE(file.All(SectionId::kObjectMap));
    EXPECT_THAT(file.Warnings(), ElementsAre(L"A section is said to lie outside of the file."));
    EXPECT_EQ(file.report().warnings[0].offset, 25u + 9);
  }
}

TEST(FlatContainer, SectionsOfOtherNumbersMayLieAnywhere) {
  Opened file = OpenedFlat(File({kThree[0], kThree[1], kThree[2], {3, 0, 0}, {5, 0xFFFF, 0xFFFF}}));
  EXPECT_THAT(file.Warnings(), IsEmpty());
}

TEST(FlatContainer, AWrongCheckIsToldWithItsPlace) {
  Opened file = OpenedFlat(handmade::Damaged(File(kThree), 25 + 27));
  EXPECT_TRUE(file.All(SectionId::kHeader));
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The checksum of the file's head is wrong."));
  EXPECT_EQ(file.report().warnings[0].offset, 25u + 27);
}

TEST(FlatContainer, AWrongMarkIsTold) {
  Opened file = OpenedFlat(handmade::Damaged(File(kThree), 25 + 27 + 2 + 5));
  EXPECT_THAT(file.Warnings(), ElementsAre(L"The mark behind the file's head is wrong."));
}

TEST(FlatContainer, AListThatCannotBeRightIsARefusal) {
  std::string bytes = File(kThree);
  for (const std::uint32_t count : {0u, 33u, 0xFFFFFFFFu}) {
    bytes.replace(21, 4, Low32(count));
    EXPECT_EQ(OpenedFlat(bytes).Refusal(), L"The list of sections can't be right.");
  }
}

TEST(FlatContainer, AFileThatEndsWithinItsListIsARefusal) {
  const std::string bytes = File(kThree);
  for (std::size_t size = 28; size < 25 + 27 + 2; ++size) {
    EXPECT_EQ(OpenedFlat(bytes.substr(0, size)).Refusal(),
              L"The file ends within its list of sections.");
  }
  EXPECT_EQ(OpenedFlat(bytes.substr(0, 27)).Refusal(), L"The file ends within its head.");
}

}  // namespace
}  // namespace zdx::dwg

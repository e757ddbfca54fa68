#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/records/ObjectMap.h"
#include "formats/dwg/Containers.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using namespace std::string_literals;
using handmade::High16;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint64_t kMapPlace = 0x1000;

// A page: its size with itself, the entries, the check.
std::string Page(const std::string& entries) {
  const std::string page = High16(static_cast<unsigned>(entries.size() + 2)) + entries;
  return page + High16(handmade::SlowCrc16(page));
}

const std::string kMapEnd = Page("");

// Handles 5 and 7 at 100 and 36: steps 5 and 2, and 100 (two bytes for a positive 100) and -64.
const std::string kFirstPage = Page("\x05\xE4\x00\x02\xC0\x40"s);
// Handle 0x90 at 10.
const std::string kSecondPage = Page("\x90\x01\x0A");

class ObjectMapTest : public testing::Test {
 protected:
  ObjectMap& Of(const std::string& bytes) {
    section.emplace(bytes, kMapPlace);
    return map.emplace(*section, report);
  }

  model::Report report;
  std::optional<PlainSection> section;
  std::optional<ObjectMap> map;
};

TEST_F(ObjectMapTest, AnEntryIsTheStepFromTheOneBefore) {
  ObjectMap& found = Of(kFirstPage + kMapEnd);
  EXPECT_EQ(found.Find(5), 100u);
  EXPECT_EQ(found.Find(7), 36u);
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(ObjectMapTest, APageBeginsAnewFromZero) {
  ObjectMap& found = Of(kFirstPage + kSecondPage + kMapEnd);
  EXPECT_EQ(found.Find(0x90), 10u);
  EXPECT_EQ(found.Find(7), 36u);
  EXPECT_EQ(found.Find(5), 100u);
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

using Visits = std::vector<std::pair<model::Handle, std::uint64_t>>;

Visits VisitsOf(ObjectMap& map, std::size_t most = 100) {
  Visits visits;
  map.ForEach([&](model::Handle handle, std::uint64_t place) {
    visits.emplace_back(handle, place);
    // Whoever visits may ask.
    EXPECT_EQ(map.Find(handle), place);
    return visits.size() < most;
  });
  return visits;
}

TEST_F(ObjectMapTest, EachHandleIsVisitedOnceByAscendingHandles) {
  ObjectMap& found = Of(kFirstPage + kSecondPage + kMapEnd);
  EXPECT_EQ(VisitsOf(found), (Visits{{5, 100}, {7, 36}, {0x90, 10}}));
  EXPECT_EQ(VisitsOf(found, 2), (Visits{{5, 100}, {7, 36}}));
  EXPECT_EQ(VisitsOf(Of(kSecondPage + kFirstPage + kFirstPage + kMapEnd)),
            (Visits{{5, 100}, {7, 36}, {0x90, 10}}));
}

TEST_F(ObjectMapTest, HandlesThatAreNotThereAreNotFound) {
  ObjectMap& found = Of(kFirstPage + kSecondPage + kMapEnd);
  for (const model::Handle handle : {0u, 4u, 6u, 8u, 0x8Fu, 0x91u, 0xFFFFFFFFu}) {
    EXPECT_EQ(found.Find(handle), std::nullopt) << handle;
  }
  EXPECT_EQ(ObjectMap().Find(5), std::nullopt);
}

// Each handle h of ten pages stands at 3 h: more entries on a page than there are between marks.
TEST_F(ObjectMapTest, EveryHandleOfLongPagesIsFound) {
  std::string bytes;
  for (unsigned page = 0; page < 10; ++page) {
    const unsigned first = 0x1000 + page * 1000;
    std::string entries;
    entries += static_cast<char>(0x80 | (first & 0x7F));
    entries += static_cast<char>(first >> 7);
    const unsigned offset = 3 * first;
    entries += static_cast<char>(0x80 | (offset & 0x7F));
    entries += static_cast<char>(0x80 | (offset >> 7 & 0x7F));
    entries += static_cast<char>(offset >> 14);
    for (int i = 1; i < 500; ++i) entries += "\x02\x06";
    bytes += Page(entries);
  }
  ObjectMap& found = Of(bytes + kMapEnd);
  for (unsigned page = 0; page < 10; ++page) {
    for (unsigned i = 0; i < 1000; ++i) {
      const model::Handle handle = 0x1000 + page * 1000 + i;
      const auto expected = i % 2 == 0 ? std::optional<std::uint64_t>(3 * handle) : std::nullopt;
      ASSERT_EQ(found.Find(handle), expected) << handle;
    }
  }
  EXPECT_THAT(TextsOf(report), IsEmpty());
}

TEST_F(ObjectMapTest, PagesOutOfOrderAreReadAndTold) {
  ObjectMap& found = Of(kSecondPage + kFirstPage + kMapEnd);
  EXPECT_EQ(found.Find(5), 100u);
  EXPECT_EQ(found.Find(7), 36u);
  EXPECT_EQ(found.Find(0x90), 10u);
  EXPECT_EQ(found.Find(8), std::nullopt);
  EXPECT_THAT(TextsOf(report), ElementsAre(L"The object map isn't in order."));
}

TEST_F(ObjectMapTest, AWrongCheckIsToldWithItsPlaceAndThePageRead) {
  const std::string damaged = handmade::Damaged(kSecondPage, kSecondPage.size() - 1);
  ObjectMap& found = Of(kFirstPage + damaged + kMapEnd);
  EXPECT_EQ(found.Find(5), 100u);
  EXPECT_THAT(TextsOf(report), IsEmpty());
  EXPECT_EQ(found.Find(0x90), 10u);
  ASSERT_THAT(TextsOf(report), ElementsAre(L"The checksum of a page of the object map is wrong."));
  EXPECT_EQ(report.warnings[0].offset, kMapPlace + kFirstPage.size());
}

TEST_F(ObjectMapTest, AMapThatEndsEarlyKeepsItsPages) {
  for (const std::string& rest : {""s, "\0"s, "\0\1"s, "\0\0"s, "\x07\xF0 too short"s}) {
    report = {};
    ObjectMap& found = Of(kFirstPage + rest);
    EXPECT_EQ(found.Find(7), 36u);
    EXPECT_THAT(TextsOf(report), ElementsAre(L"The object map ends early."));
  }
}

TEST_F(ObjectMapTest, AnEntryThatIsCutEndsItsPage) {
  ObjectMap& found = Of(Page("\x05\xE4\x00\x02\xC0"s) + kSecondPage + kMapEnd);
  EXPECT_EQ(found.Find(5), 100u);
  EXPECT_EQ(found.Find(7), std::nullopt);
  EXPECT_EQ(found.Find(0x90), 10u);
}

TEST_F(ObjectMapTest, AnEntryThatNeverEndsEndsItsPage) {
  ObjectMap& found = Of(Page("\x05\x0A" + std::string(40, '\xFF')) + kMapEnd);
  EXPECT_EQ(found.Find(5), 10u);
  EXPECT_EQ(found.Find(6), std::nullopt);
}

TEST_F(ObjectMapTest, OfARepeatedHandleTheFirstCounts) {
  EXPECT_EQ(Of(Page("\x05\x0A\x00\x01\x01\x01"s) + kMapEnd).Find(5), 10u);
}

}  // namespace
}  // namespace zdx::dwg

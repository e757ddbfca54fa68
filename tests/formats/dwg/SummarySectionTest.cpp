#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "backends/database/dwg/SummarySection.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using namespace std::string_literals;
using handmade::Low16;
using handmade::Wide;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr Format kBytes = {model::kVersion1018, 0};
constexpr Format kUnits = {model::kVersion1021, 0};

// The count has the terminator.
std::string Text(Format format, const std::string& text) {
  const std::string whole = text + '\0';
  return Low16(whole.size()) + (format.HasStringStream() ? Wide(whole) : whole);
}

std::string Section(Format format) {
  std::string bytes;
  for (const char* text : {"Title", "Subject", "Author", "Keys", "Comments", "Last", "Rev", ""}) {
    bytes += Text(format, text);
  }
  bytes += std::string(24, '\x11') + Low16(2);
  bytes += Text(format, "Name") + Text(format, "Value") + Text(format, "Empty") + Text(format, "");
  return bytes + std::string(8, '\0');
}

TEST(SummarySection, HasEightTextsAndCustomEntries) {
  const std::string bytes = Section(kBytes);
  const StoredSummary summary = ReadSummarySection(bytes, kBytes);
  EXPECT_THAT(summary.fields,
              ElementsAre("Title", "Subject", "Author", "Keys", "Comments", "Last", "Rev", ""));
  EXPECT_THAT(summary.custom, ElementsAre(Pair("Name", "Value"), Pair("Empty", "")));
  EXPECT_FALSE(summary.damaged);
}

TEST(SummarySection, FromAC1021OnCharactersHaveTwoBytes) {
  const std::string bytes = Section(kUnits);
  const StoredSummary summary = ReadSummarySection(bytes, kUnits);
  EXPECT_EQ(summary.fields[0], Wide("Title"));
  EXPECT_EQ(summary.fields[7], "");
  EXPECT_THAT(summary.custom,
              ElementsAre(Pair(Wide("Name"), Wide("Value")), Pair(Wide("Empty"), "")));
  EXPECT_FALSE(summary.damaged);
}

TEST(SummarySection, ACountOfZeroIsAnEmptyText) {
  std::string bytes;
  for (int i = 0; i < 8; ++i) bytes += Low16(0);
  bytes += std::string(24, '\0') + Low16(0);
  const StoredSummary summary = ReadSummarySection(bytes, kUnits);
  for (const auto& field : summary.fields) EXPECT_EQ(field, "");
  EXPECT_FALSE(summary.damaged);
}

TEST(SummarySection, BytesBehindTheEntriesAreNotRead) {
  const std::string bytes = Section(kBytes) + "more";
  EXPECT_EQ(ReadSummarySection(bytes, kBytes).custom.size(), 2u);
}

TEST(SummarySection, ACutSectionKeepsWhatIsWhole) {
  const std::string bytes = Section(kBytes);
  // Title and subject, and a part of the author.
  const std::string cut = bytes.substr(0, 2 + 6 + 2 + 8 + 2 + 3);
  const StoredSummary summary = ReadSummarySection(cut, kBytes);
  EXPECT_EQ(summary.fields[0], "Title");
  EXPECT_EQ(summary.fields[1], "Subject");
  for (std::size_t i = 2; i < 8; ++i) EXPECT_EQ(summary.fields[i], std::nullopt);
  EXPECT_THAT(summary.custom, IsEmpty());
  EXPECT_TRUE(summary.damaged);
}

TEST(SummarySection, CutAnywhereBeforeTheEntriesEndItIsDamaged) {
  for (const Format format : {kBytes, kUnits}) {
    const std::string bytes = Section(format);
    for (std::size_t size = 0; size < bytes.size() - 8; ++size) {
      const std::string cut = bytes.substr(0, size);
      ASSERT_TRUE(ReadSummarySection(cut, format).damaged) << size;
    }
  }
}

TEST(SummarySection, MoreEntriesThanThereAreKeepsThoseThatAre) {
  std::string bytes;
  for (int i = 0; i < 8; ++i) bytes += Low16(0);
  bytes += std::string(24, '\0') + Low16(0xFFFF) + Text(kBytes, "Name") + Text(kBytes, "Value");
  const StoredSummary summary = ReadSummarySection(bytes, kBytes);
  EXPECT_THAT(summary.custom, ElementsAre(Pair("Name", "Value")));
  EXPECT_TRUE(summary.damaged);
}

}  // namespace
}  // namespace zdx::dwg

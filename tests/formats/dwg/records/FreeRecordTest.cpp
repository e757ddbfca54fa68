#include <gtest/gtest.h>

#include "backends/database/dwg/records/FreeRecord.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Low16;

constexpr Format kOld = {model::kVersion1018, 0};
constexpr Format kNew = {model::kVersion1021, 0};

std::string OldText(unsigned code, const std::string& text, unsigned page = 30) {
  return Low16(code) + Low16(text.size()) + static_cast<char>(page) + text;
}

struct Range {
  unsigned first;
  unsigned last;
  // Of its values, in bytes.
  std::size_t size;
};

constexpr Range kRanges[] = {
    {5, 5, 8},     {10, 17, 24},  {110, 119, 24}, {210, 239, 24},  {1010, 1013, 24},
    {18, 59, 8},   {120, 149, 8}, {460, 469, 8},  {1014, 1059, 8}, {60, 79, 2},
    {170, 179, 2}, {270, 279, 2}, {370, 389, 2},  {400, 409, 2},   {1060, 1070, 2},
    {90, 99, 4},   {420, 429, 4}, {440, 459, 4},  {1071, 1071, 4}, {160, 169, 8},
    {280, 299, 1}, {320, 369, 8}, {390, 399, 8},  {480, 481, 8},   {1005, 1005, 8},
};

constexpr Range kTexts[] = {{0, 4, 0},     {6, 9, 0},     {100, 109, 0}, {300, 309, 0},
                            {410, 419, 0}, {430, 439, 0}, {470, 479, 0}, {999, 1003, 0}};

// Reads a group and then the text behind it, which proves how long the group was.
void ExpectGroup(const std::string& group, unsigned code) {
  const std::string all = group + OldText(1, "behind");
  GroupReader both(all, kOld);
  const auto first = both.Next();
  ASSERT_TRUE(first) << code;
  EXPECT_EQ(first->code, static_cast<int>(code));
  const auto second = both.Next();
  ASSERT_TRUE(second) << code;
  EXPECT_EQ(second->text, "behind");
  EXPECT_EQ(both.Next(), std::nullopt);
  EXPECT_FALSE(both.endedByDamage());
}

TEST(GroupReader, ValuesHaveTheSizeOfTheirCode) {
  for (const Range& range : kRanges) {
    for (unsigned code = range.first; code <= range.last; ++code) {
      ExpectGroup(Low16(code) + std::string(range.size, '\x07'), code);
    }
  }
}

TEST(GroupReader, BytesTellTheirNumber) {
  for (const unsigned code : {310u, 319u, 1004u}) {
    ExpectGroup(Low16(code) +
                    "\x03"
                    "abc",
                code);
    ExpectGroup(Low16(code) + std::string(1, '\0'), code);
  }
}

TEST(GroupReader, TextsBelowAC1021HaveAPageAndBytes) {
  for (const Range& range : kTexts) {
    for (unsigned code = range.first; code <= range.last; ++code) {
      const std::string bytes = OldText(code, "text", 29);
      GroupReader reader(bytes, kOld);
      const auto group = reader.Next();
      ASSERT_TRUE(group) << code;
      EXPECT_TRUE(group->isText);
      EXPECT_EQ(group->text, "text");
      EXPECT_EQ(group->codePage, 29);
    }
  }
}

TEST(GroupReader, TextsFromAC1021OnHaveUnitsOfTwoBytes) {
  const std::string bytes = Low16(300) + Low16(4) + handmade::Wide("text") + Low16(70) + Low16(9);
  GroupReader reader(bytes, kNew);
  const auto group = reader.Next();
  ASSERT_TRUE(group);
  EXPECT_EQ(group->text, handmade::Wide("text"));
  EXPECT_EQ(reader.Next()->code, 70);
  EXPECT_EQ(reader.Next(), std::nullopt);
  EXPECT_FALSE(reader.endedByDamage());
}

TEST(GroupReader, BytesAreToldAsTheyAre) {
  const std::string bytes = Low16(310) + std::string("\x03\0\xFF\x01", 4) + OldText(1, "behind");
  GroupReader reader(bytes, kOld);
  const auto group = reader.Next();
  ASSERT_TRUE(group);
  EXPECT_FALSE(group->isText);
  EXPECT_EQ(group->bytes, std::string("\0\xFF\x01", 3));
  EXPECT_EQ(reader.Next()->bytes, "");
}

TEST(GroupReader, NothingIsAnEndWithoutDamage) {
  GroupReader reader("", kOld);
  EXPECT_EQ(reader.Next(), std::nullopt);
  EXPECT_FALSE(reader.endedByDamage());
}

TEST(GroupReader, AGroupThatIsCutIsDamage) {
  for (const std::string& group :
       {OldText(1, "text"), Low16(70) + Low16(1), Low16(10) + std::string(24, 'x'),
        Low16(310) + "\x03"
                     "abc",
        Low16(90) + handmade::Low32(1)}) {
    for (std::size_t size = 1; size < group.size(); ++size) {
      const std::string cut = group.substr(0, size);
      GroupReader reader(cut, kOld);
      EXPECT_EQ(reader.Next(), std::nullopt);
      EXPECT_TRUE(reader.endedByDamage());
      EXPECT_EQ(reader.Next(), std::nullopt);
    }
  }
}

TEST(GroupReader, ACodeOfNoRangeIsDamage) {
  for (const unsigned code : {80u, 89u, 150u, 180u, 240u, 482u, 998u, 1072u, 0xFFFFu}) {
    const std::string bytes = OldText(1, "before") + Low16(code) + std::string(40, '\1');
    GroupReader reader(bytes, kOld);
    EXPECT_EQ(reader.Next()->text, "before");
    EXPECT_EQ(reader.Next(), std::nullopt) << code;
    EXPECT_TRUE(reader.endedByDamage());
  }
}

}  // namespace
}  // namespace zdx::dwg

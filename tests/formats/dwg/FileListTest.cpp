// The list of the files that a drawing needs.
#include <gtest/gtest.h>

#include "backends/database/dwg/FileList.h"
#include "support/dwg/Bytes.h"
#include "support/handmade/HandMade.h"

namespace zdx::dwg {
namespace {

using handmade::Low32;

constexpr Format kListOf1018 = {model::kVersion1018, 0};
constexpr Format kListOf1021 = {model::kVersion1021, 0};
const std::string kListTail(4 + 4 + 4 + 2 + 4, '\x7F');

std::string ListText(const std::string& bytes) { return Low32(bytes.size()) + bytes; }

// With no fingerprint and no version.
std::string ListEntry(const std::string& name, const std::string& path) {
  return ListText(name) + ListText(path) + Low32(0) + Low32(0) + kListTail;
}

std::string WideText(std::initializer_list<std::uint32_t> points) {
  std::string text;
  for (const std::uint32_t point : points) text += Low32(point);
  return text;
}

TEST(FileList, HasItsFilesInStoredOrder) {
  const std::string bytes = Low32(2) + ListText("One") + ListText("Two") + Low32(2) +
                            ListEntry("a.shx", "/f/a.shx") + ListEntry("b.shx", "");
  const FileList list = ReadFileList(bytes, kListOf1018);
  EXPECT_FALSE(list.damaged);
  ASSERT_EQ(list.files.size(), 2u);
  EXPECT_EQ(list.files[0].name, "a.shx");
  EXPECT_EQ(list.files[0].path, "/f/a.shx");
  EXPECT_EQ(list.files[1].name, "b.shx");
  EXPECT_EQ(list.files[1].path, "");
}

TEST(FileList, IsEmptyInAnEmptySection) {
  EXPECT_TRUE(ReadFileList("", kListOf1018).files.empty());
  EXPECT_FALSE(ReadFileList("", kListOf1018).damaged);
}

TEST(FileList, HasCharactersOfTwoOrFourBytesFromAC1021On) {
  const std::string units = ::dwg::Utf16("a\u00E9\U0001F600.shx");
  const std::string wide = WideText({'a', 0xE9, 0x1F600, '.', 's', 'h', 'x'});
  const FileList list = ReadFileList(
      Low32(0) + Low32(2) + ListEntry(units, units) + ListEntry(wide, wide), kListOf1021);
  ASSERT_EQ(list.files.size(), 2u);
  for (const ListedFile& file : list.files) {
    EXPECT_EQ(file.name, units);
    EXPECT_EQ(file.path, units);
  }
}

TEST(FileList, HasBytesOfTheCodePageInAC1018) {
  const std::string four("\x01\x02\0\0", 4);
  const FileList list = ReadFileList(Low32(0) + Low32(1) + ListEntry(four, ""), kListOf1018);
  ASSERT_EQ(list.files.size(), 1u);
  EXPECT_EQ(list.files[0].name, four);
}

TEST(FileList, TellsTheFilesBeforeTheDamage) {
  const std::string bytes = Low32(0) + Low32(2) + ListEntry("a.shx", "") + ListEntry("b.shx", "");
  for (std::size_t size = 1; size < bytes.size(); ++size) {
    const FileList list = ReadFileList(std::string_view(bytes).substr(0, size), kListOf1018);
    EXPECT_TRUE(list.damaged) << size;
    const bool hasFirst = size >= 8 + ListEntry("a.shx", "").size();
    EXPECT_EQ(list.files.size(), hasFirst ? 1u : 0u) << size;
  }
}

TEST(FileList, EndsAtACountThatTheSectionCannotHold) {
  EXPECT_TRUE(ReadFileList(Low32(0xFFFFFFFF) + ListText("One"), kListOf1018).damaged);
  EXPECT_TRUE(ReadFileList(Low32(0) + Low32(0xFFFFFFFF), kListOf1018).damaged);
  EXPECT_TRUE(ReadFileList(Low32(0) + Low32(1) + Low32(0xFFFFFFFF) + "a", kListOf1018).damaged);
}

TEST(FileList, HasNoMoreFilesThanDrawingsNeed) {
  std::string bytes = Low32(0) + Low32(200000);
  for (int i = 0; i < 200000; ++i) bytes += ListEntry("a", "");
  const FileList list = ReadFileList(bytes, kListOf1018);
  EXPECT_EQ(list.files.size(), 100000u);
  EXPECT_TRUE(list.damaged);
}

}  // namespace
}  // namespace zdx::dwg

#include <gtest/gtest.h>

#include <map>

#include "backends/database/dwg/container/PagedSection.h"

namespace zdx::dwg {
namespace {

SectionPage At(std::uint64_t start, std::uint64_t size, std::int64_t id) {
  SectionPage page;
  page.start = start;
  page.size = size;
  page.id = id;
  page.address = 0x1000 + static_cast<std::uint64_t>(id);
  return page;
}

class PagedSectionTest : public testing::Test {
 protected:
  // Each page is made of the digit of its number; those of number 9 can't be read.
  PagedSection Of(std::uint64_t size, std::vector<SectionPage> pages) {
    return PagedSection(
        size, std::move(pages), [this](const SectionPage& page) -> std::optional<PageBytes> {
          ++reads[page.id];
          if (page.id == 9) return std::nullopt;
          const auto digit = static_cast<char>('0' + page.id);
          return PageBytes{std::string(static_cast<std::size_t>(page.size), digit), {}};
        });
  }

  static std::optional<std::string> Bytes(PagedSection& section, std::uint64_t at,
                                          std::uint64_t count) {
    std::string scratch;
    const auto bytes = section.Bytes(at, count, scratch);
    return bytes ? std::optional<std::string>(*bytes) : std::nullopt;
  }

  std::map<std::int64_t, int> reads;
};

TEST_F(PagedSectionTest, BytesWithinAPageAndOverItsEdge) {
  PagedSection section = Of(8, {At(0, 4, 1), At(4, 4, 2)});
  EXPECT_EQ(Bytes(section, 1, 2), "11");
  EXPECT_EQ(Bytes(section, 2, 4), "1122");
  EXPECT_EQ(Bytes(section, 0, 8), "11112222");
  EXPECT_EQ(Bytes(section, 8, 0), "");
}

TEST_F(PagedSectionTest, BehindTheSectionThereIsNothing) {
  PagedSection section = Of(8, {At(0, 4, 1), At(4, 4, 2)});
  EXPECT_EQ(Bytes(section, 7, 2), std::nullopt);
  EXPECT_EQ(Bytes(section, 9, 0), std::nullopt);
  EXPECT_EQ(Bytes(section, 1, ~std::uint64_t{0}), std::nullopt);
}

TEST_F(PagedSectionTest, WhatNoPageCoversIsZero) {
  PagedSection section = Of(12, {At(2, 2, 1), At(6, 2, 2)});
  EXPECT_EQ(Bytes(section, 0, 12), std::string("\0\0"
                                               "11\0\0"
                                               "22\0\0\0\0",
                                               12));
  EXPECT_EQ(Bytes(section, 4, 2), std::string(2, '\0'));
}

TEST_F(PagedSectionTest, APageIsReadOnceAndOnlyWhenAskedFor) {
  PagedSection section = Of(8, {At(0, 4, 1), At(4, 4, 2)});
  EXPECT_TRUE(reads.empty());
  Bytes(section, 0, 4);
  Bytes(section, 1, 2);
  EXPECT_EQ(reads, (std::map<std::int64_t, int>{{1, 1}}));
}

TEST_F(PagedSectionTest, APageThatCannotBeReadIsTriedOnceAndCostsOnlyItself) {
  PagedSection section = Of(12, {At(0, 4, 1), At(4, 4, 9), At(8, 4, 2)});
  EXPECT_EQ(Bytes(section, 4, 1), std::nullopt);
  EXPECT_EQ(Bytes(section, 2, 4), std::nullopt);
  EXPECT_EQ(Bytes(section, 8, 4), "2222");
  EXPECT_EQ(reads[9], 1);
}

TEST_F(PagedSectionTest, PagesThatOverlapOrAreEmptyAreNoLoop) {
  PagedSection section = Of(8, {At(0, 8, 1), At(2, 2, 2), At(4, 0, 3), At(4, 0, 4)});
  EXPECT_EQ(Bytes(section, 2, 2), "22");
  EXPECT_TRUE(Bytes(section, 0, 8));
}

TEST_F(PagedSectionTest, AViewStaysValidWhileOtherPagesAreRead) {
  std::vector<SectionPage> pages;
  for (std::uint64_t i = 0; i < 1000; ++i) pages.push_back(At(4 * i, 4, 1));
  PagedSection section = Of(4000, pages);
  std::string scratch;
  const auto first = section.Bytes(0, 4, scratch);
  for (std::uint64_t i = 1; i < 1000; ++i) Bytes(section, 4 * i, 4);
  EXPECT_EQ(first, "1111");
}

TEST_F(PagedSectionTest, MegabytesOfZerosAreNotJoined) {
  PagedSection section = Of(std::uint64_t{1} << 40, {At(0, 4, 1)});
  EXPECT_EQ(Bytes(section, 0, std::uint64_t{1} << 30), std::nullopt);
  EXPECT_EQ(Bytes(section, 0, std::uint64_t{4} << 20), std::nullopt);
  EXPECT_EQ(Bytes(section, 2, 0x10000)->size(), 0x10000u);
}

TEST_F(PagedSectionTest, TellsTheAddressOfThePage) {
  PagedSection section = Of(12, {At(0, 4, 1), At(8, 4, 2)});
  EXPECT_EQ(section.PlaceOf(9), 0x1002u);
  EXPECT_EQ(section.PlaceOf(5), 0u);
}

}  // namespace
}  // namespace zdx::dwg

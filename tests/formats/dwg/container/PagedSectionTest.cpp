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
        size, std::move(pages), cache,
        [this](const SectionPage& page, bool again) -> std::optional<PageBytes> {
          ++reads[page.id];
          if (again) ++readsAgain;
          if (!cache.MakeRoom(page.size)) return std::nullopt;
          if (page.id == 9) return std::nullopt;
          const auto digit = static_cast<char>('0' + page.id);
          return PageBytes{std::string(static_cast<std::size_t>(page.size), digit), {}};
        });
  }

  static std::optional<std::string> Bytes(PagedSection& section, std::uint64_t at,
                                          std::uint64_t count) {
    Scratch scratch;
    const auto bytes = section.Bytes(at, count, scratch);
    return bytes ? std::optional<std::string>(*bytes) : std::nullopt;
  }

  // For a file of no bytes.
  PageCache cache{0};
  std::map<std::int64_t, int> reads;
  int readsAgain = 0;
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
  Scratch scratch;
  const auto first = section.Bytes(0, 4, scratch);
  for (std::uint64_t i = 1; i < 1000; ++i) Bytes(section, 4 * i, 4);
  EXPECT_EQ(first, "1111");
}

constexpr std::uint64_t kMebibyte = 1 << 20;

std::vector<SectionPage> PagesOf(std::uint64_t count, std::uint64_t size) {
  std::vector<SectionPage> pages;
  for (std::uint64_t i = 0; i < count; ++i) {
    pages.push_back(At(i * size, size, static_cast<std::int64_t>(i % 9)));
  }
  return pages;
}

TEST_F(PagedSectionTest, MorePagesThanTheCacheHoldsAreReadOneAfterAnother) {
  PagedSection section = Of(100 * kMebibyte, PagesOf(100, kMebibyte));
  for (std::uint64_t i = 0; i < 100; ++i) {
    EXPECT_EQ(Bytes(section, i * kMebibyte, 1), std::string(1, static_cast<char>('0' + i % 9)));
  }
  EXPECT_EQ(readsAgain, 0);
}

TEST_F(PagedSectionTest, APageThatWasLetGoIsReadAgain) {
  PagedSection section = Of(100 * kMebibyte, PagesOf(100, kMebibyte));
  for (const std::uint64_t page : {0, 1}) Bytes(section, page * kMebibyte, 1);
  EXPECT_EQ(readsAgain, 0);
  for (std::uint64_t i = 2; i < 100; ++i) {
    // The second one stays in use.
    Bytes(section, kMebibyte, 1);
    Bytes(section, i * kMebibyte, 1);
  }
  EXPECT_EQ(Bytes(section, kMebibyte + 7, 2), "11");
  EXPECT_EQ(readsAgain, 0);
  EXPECT_EQ(Bytes(section, 7, 2), "00");
  EXPECT_EQ(readsAgain, 1);
}

TEST_F(PagedSectionTest, APageThatSomebodyHoldsStays) {
  PagedSection section = Of(100 * kMebibyte, PagesOf(100, kMebibyte));
  Scratch scratch;
  const auto held = section.Bytes(5, 3, scratch);
  for (std::uint64_t i = 1; i < 100; ++i) Bytes(section, i * kMebibyte, 1);
  EXPECT_EQ(held, "000");
  EXPECT_EQ(Bytes(section, 0, 1), "0");
  EXPECT_EQ(readsAgain, 0);
}

TEST_F(PagedSectionTest, TheSamePagesAreNotReadAgainForEver) {
  PagedSection section = Of(64 * kMebibyte, PagesOf(64, kMebibyte));
  for (std::uint64_t i = 0; i < 10000; ++i) Bytes(section, i % 64 * kMebibyte, 1);
  EXPECT_GT(readsAgain, 100);
  EXPECT_LT(readsAgain, 1000);
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

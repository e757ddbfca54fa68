// A section that is cut into pages.
#pragma once

#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "backends/database/dwg/container/Container.h"
#include "backends/database/dwg/container/PageCache.h"

namespace zdx::dwg {

// One page of a section.
struct SectionPage {
  // Where its data stand in the section, and how many bytes they have there.
  std::uint64_t start = 0;
  std::uint64_t size = 0;
  std::int64_t id = 0;
  // Its numbers in the section map, whose meaning is the container's.
  std::uint64_t storedSize = 0;
  std::uint64_t checksum = 0;
  std::uint64_t crc = 0;
  // Where it stands in the file, and where its data do if they are stored as they are.
  std::uint64_t address = 0;
  std::optional<std::uint64_t> plainAt;
};

// The bytes of a page: a view of the file, or bytes of their own.
struct PageBytes {
  std::string own;
  std::string_view view;
};

// Reads pages when they are asked for, and puts what it had to decompress into a cache.
class PagedSection : public Section {
 public:
  // Gives the `size` bytes of a page, or nullopt if they can't be read, which it tells itself.  It
  // makes room in the cache for those that it decompresses.  `again` says that they were read
  // before, so that what is wrong with them is known.
  using ReadPage = std::function<std::optional<PageBytes>(const SectionPage& page, bool again)>;

  // What no page covers is zero.  The cache outlives the section.
  PagedSection(std::uint64_t size, std::vector<SectionPage> pages, PageCache& cache, ReadPage read);
  PagedSection(const PagedSection&) = delete;
  PagedSection& operator=(const PagedSection&) = delete;

  std::uint64_t size() const override { return size_; }
  std::optional<std::string_view> Bytes(std::uint64_t at, std::uint64_t count,
                                        Scratch& scratch) override;
  std::uint64_t PlaceOf(std::uint64_t at) const override;

 private:
  static constexpr std::size_t kNoPage = ~std::size_t{0};

  // What is known of a page that was asked for.
  struct Content {
    bool wasRead = false;
    bool canBeRead = true;
    bool isDecompressed = false;
    // Of a page that isn't decompressed.
    std::string_view plain;
    PageCache::Page cached;
  };

  std::size_t PageAt(std::uint64_t at) const;
  bool IsIn(std::size_t page, std::uint64_t at) const;
  std::optional<std::string_view> PageContent(std::size_t page,
                                              std::shared_ptr<const std::string>& holder);
  void ReadContent(std::size_t page, Content& content);
  bool Append(std::uint64_t at, std::uint64_t count, std::string& out);

  std::uint64_t size_;
  // By where they start.
  std::vector<SectionPage> pages_;
  PageCache& cache_;
  ReadPage read_;
  // Stay where they are.
  std::unordered_map<std::size_t, Content> contents_;
  // The one that was asked for last: the next question is mostly about the same.
  mutable std::size_t lastPage_ = kNoPage;
  Content* lastContent_ = nullptr;
  std::size_t lastContentPage_ = kNoPage;
};

}  // namespace zdx::dwg

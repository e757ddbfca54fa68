// A section that is cut into pages.
#pragma once

#include <functional>
#include <unordered_map>
#include <vector>

#include "backends/database/dwg/container/Budget.h"
#include "backends/database/dwg/container/Container.h"

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

// Reads pages when they are asked for, and keeps what it had to decompress.
class PagedSection : public Section {
 public:
  // Gives the `size` bytes of a page, or nullopt if they can't be read, which it tells itself.  It
  // takes the memory that it needs from the budget.
  using ReadPage = std::function<std::optional<PageBytes>(const SectionPage& page)>;

  // What no page covers is zero.
  PagedSection(std::uint64_t size, std::vector<SectionPage> pages, ReadPage read);

  std::uint64_t size() const override { return size_; }
  std::optional<std::string_view> Bytes(std::uint64_t at, std::uint64_t count,
                                        std::string& scratch) override;
  std::uint64_t PlaceOf(std::uint64_t at) const override;

 private:
  static constexpr std::size_t kNoPage = ~std::size_t{0};

  std::size_t PageAt(std::uint64_t at) const;
  std::optional<std::string_view> PageContent(std::size_t page);
  bool Append(std::uint64_t at, std::uint64_t count, std::string& out);

  std::uint64_t size_;
  // By where they start.
  std::vector<SectionPage> pages_;
  ReadPage read_;
  std::unordered_map<std::size_t, std::optional<PageBytes>> contents_;
};

}  // namespace zdx::dwg
